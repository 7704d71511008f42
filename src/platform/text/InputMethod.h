// What an input method is composing in a text control, and what it may know of the text.
#pragma once

#include <QRect>
#include <QString>
#include <QVariant>

class AccessibleText;
class QWidget;

class InputMethod {
  public:
    /// What is being composed is shown in this widget.
    explicit InputMethod(QWidget& viewport) : viewport_(viewport) {}

    /// What is still being composed is no text of the document yet: it is shown over it.
    void SetPreedit(const QString& text);
    bool Composing() const { return !preedit_.isEmpty(); }
    /// Draws it at the caret, whose place is in pixels of the viewport.
    void Paint(QRect caret, const QFont& font) const;

    /// The answer to what an input method asks of the text around the caret; nothing for what only the
    /// control knows. No more than some characters to either side: a page may be one line of a megabyte.
    static QVariant Answer(const AccessibleText& text, Qt::InputMethodQuery query);

  private:
    QWidget& viewport_;
    QString preedit_;
};
