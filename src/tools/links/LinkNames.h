// How the names of the link tree are drawn.
#pragma once

#include <QStyledItemDelegate>

/// On one line each, and no longer than a person reads: what the scan takes for a link may be half a page.
class LinkNames final : public QStyledItemDelegate {
    Q_OBJECT

  public:
    static constexpr int longest = 500;

    using QStyledItemDelegate::QStyledItemDelegate;
    QString displayText(const QVariant& value, const QLocale& locale) const override;
};
