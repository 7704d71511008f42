// What assistive technology sees of the text control.
#pragma once

#include <QAccessible>
#include <QAccessibleWidget>

class AccessibleText;

/// The text, caret and selection of a control that is an AccessibleText. No query costs more than the text
/// that it returns: the interface of the class that the control derives from counts the characters of the
/// whole text at each key.
class RichTextAccessible final : public QAccessibleWidget,
                                 public QAccessibleTextInterface,
                                 public QAccessibleEditableTextInterface {
  public:
    /// The viewport is the widget whose pixels the text speaks of.
    RichTextAccessible(QWidget* control, AccessibleText& text, const QWidget& viewport);
    /// Makes every scrolling widget that is an AccessibleText get this interface. Once is enough; more do no
    /// harm.
    static void Install();

    void* interface_cast(QAccessible::InterfaceType type) override;
    QAccessible::State state() const override;

    void selection(int index, int* start, int* end) const override;
    int selectionCount() const override;
    void addSelection(int start, int end) override;
    void removeSelection(int index) override;
    void setSelection(int index, int start, int end) override;
    int cursorPosition() const override;
    void setCursorPosition(int position) override;
    QString text(int start, int end) const override;
    QString text(QAccessible::Text which) const override;
    QString textBeforeOffset(int offset, QAccessible::TextBoundaryType type, int* start,
                             int* end) const override;
    QString textAfterOffset(int offset, QAccessible::TextBoundaryType type, int* start,
                            int* end) const override;
    QString textAtOffset(int offset, QAccessible::TextBoundaryType type, int* start, int* end) const override;
    int characterCount() const override;
    QRect characterRect(int offset) const override;
    int offsetAtPoint(const QPoint& point) const override;
    void scrollToSubstring(int start, int end) override;
    /// The colours, and the stretch around the offset that shares them, as far as a short look around tells.
    QString attributes(int offset, int* start, int* end) const override;

    void deleteText(int start, int end) override;
    void insertText(int offset, const QString& text) override;
    void replaceText(int start, int end, const QString& text) override;

  private:
    struct Stretch {
        int start;
        int end;
    };
    /// An offset as callers give it: -1 is the text's end, -2 the caret.
    int Resolve(int offset) const;
    Stretch StretchAt(int offset, QAccessible::TextBoundaryType type) const;
    bool IsBlank(Stretch stretch) const;
    QString Tell(Stretch stretch, int* start, int* end) const;

    AccessibleText& text_;
    const QWidget& viewport_;
};
