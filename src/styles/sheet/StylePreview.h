// The live preview: a page of one style, in the browser control.
#pragma once

#include <QString>

class BrowserControl;
class Frame;
class QWidget;

/// Works where UseMSIE is 1; the control is there only if it was when the form came, and an engine too.
class StylePreview {
  public:
    explicit StylePreview(Frame& frame) : frame_(frame) {}

    /// Makes the control "WebBrowser1" in a form. Null where there is to be none, or can be none.
    QWidget* MakeBrowser(QWidget& form);
    /// Writes the page "_css.htm" in the program's folder and shows it: a rule and the element that
    /// it is for.
    void Show(const QString& element, const QString& rule);

  private:
    Frame& frame_;
    BrowserControl* browser_ = nullptr;
};
