#include "app/documents/WordWrap.h"

#include "platform/text/RichTextBox.h"

namespace {

constexpr int atTheWindow = 0;
constexpr int noWrapTwips = 65000;

} // namespace

void SetWordWrap(RichTextBox& text, bool on) {
    text.SetRightMargin(on ? atTheWindow : noWrapTwips);
}
