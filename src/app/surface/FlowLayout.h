// A layout that sets its items side by side and starts a new row where the width is used up.
#pragma once

#include <QLayout>
#include <QList>

class FlowLayout final : public QLayout {
    Q_OBJECT

  public:
    explicit FlowLayout(QWidget* parent);
    ~FlowLayout() override;

    void addItem(QLayoutItem* item) override { items_.push_back(item); }
    int count() const override { return static_cast<int>(items_.size()); }
    QLayoutItem* itemAt(int index) const override { return items_.value(index); }
    QLayoutItem* takeAt(int index) override;
    Qt::Orientations expandingDirections() const override { return {}; }
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;
    QSize minimumSize() const override;
    /// All items in one row.
    QSize sizeHint() const override;
    void setGeometry(const QRect& rectangle) override;

  private:
    /// Walks the items row by row, placing them if asked to, and returns the height used.
    int Arrange(const QRect& rectangle, bool place) const;

    QList<QLayoutItem*> items_;
};
