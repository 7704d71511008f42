#include "styles/layers/LayerInsertion.h"

#include "editor/frame/ActiveText.h"
#include "editor/frame/Frame.h"
#include "platform/store/Settings.h"
#include "platform/text/RichTextBox.h"
#include "platform/text/UndoAction.h"
#include "platform/values/Values.h"
#include "styles/sheet/PrintedLine.h"

#include <limits>

namespace {

/// The setting holds an entry of a colour table, which is no colour number: it counts only where somebody
/// stored a number instead.
std::optional<ColorNumber> StoredColorNumber(const Settings& store) {
    const auto number = Values::ToNumber(store.Read(Keys::EdTextColor[1]));
    constexpr double white = 0xffffff;
    if (!number || *number < 0 || *number > white)
        return std::nullopt;
    return static_cast<ColorNumber>(*number);
}

} // namespace

void InsertClass(Frame& frame, const QString& text, ClassPlace place) {
    RichTextBox* txtInput = ActiveText(frame);
    if (!txtInput)
        return;
    const UndoAction step(*txtInput);
    if (place == ClassPlace::HeadEnd) {
        const QString headEnd = QStringLiteral("</HEAD>");
        // Where there is no such tag the search gives -1, which the control refuses.
        txtInput->SetSelStart(txtInput->Find(headEnd, 1));
        txtInput->SetSelLength(static_cast<int>(headEnd.size()));
    }
    if (const auto color = StoredColorNumber(frame.Store())) {
        // What is selected goes first: recoloured, it would come back by undo in this colour.
        txtInput->SetSelText(QString());
        txtInput->SetSelColor(*color);
    }
    txtInput->SetSelText(WithEscapes(text, txtInput->Holds()));
}
