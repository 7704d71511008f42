#include "app/run/CarriedValues.h"

#include "app/documents/RecentFiles.h"
#include "app/run/ProgramState.h"
#include "app/surface/UserButtons.h"
#include "app/window/MainFrame.h"
#include "dialogs/DialogState.h"
#include "editor/frame/EditorOptions.h"
#include "editor/spelling/SpellChecker.h"
#include "editor/typing/UserButtonTexts.h"
#include "platform/store/Settings.h"
#include "platform/values/Path.h"
#include "platform/values/Values.h"

#include <cmath>
#include <limits>
#include <QRegularExpression>

namespace {

void Take(QString& value, const QString& text) {
    value = text;
}

void Take(bool& value, const QString& text) {
    value = Values::ToBoolean(text).value_or(value);
}

template <typename Number> void Take(Number& value, const QString& text) {
    const std::optional<double> number = Values::ToNumber(text);
    if (!number || *number < std::numeric_limits<Number>::lowest() ||
        *number > std::numeric_limits<Number>::max())
        return;
    value = static_cast<Number>(std::is_integral_v<Number> ? std::nearbyint(*number) : *number);
}

void Write(Settings& store, const SettingsKey& key, const QString& value) {
    store.Write(key, value);
}

void Write(Settings& store, const SettingsKey& key, bool value) {
    store.Write(key, Values::FromBoolean(value));
}

template <typename Number> void Write(Settings& store, const SettingsKey& key, Number value) {
    store.WriteNumber(key, value);
}

/// A value that is kept in a variable, which `place` finds.
template <typename Place>
CarriedValue Row(const SettingsKey& key, ReadAt readAt, WrittenAt writtenAt, Place place) {
    return {key, readAt, writtenAt,
            [key, place](MainFrame& frame) { Take(place(frame), frame.Store().Read(key)); },
            [key, place](MainFrame& frame) { Write(frame.Store(), key, place(frame)); }};
}

/// The place of a member of a state.
template <typename State, typename Value> auto In(Value State::*member) {
    return [member](MainFrame& frame) -> Value& { return frame.State<State>().*member; };
}

/// The place of an element of a state's array.
template <typename State, typename Array> auto In(Array State::*member, int n) {
    return [member, n](MainFrame& frame) -> QString& {
        return (frame.State<State>().*member)[static_cast<size_t>(n)];
    };
}

auto InSpellChecker(QString SpellChecker::*member) {
    return [member](MainFrame& frame) -> QString& { return frame.VSSpell1().*member; };
}

CarriedValue RunCountRow() {
    CarriedValue row = Row(Keys::FirstTimeAgain, ReadAt::EditorValues, WrittenAt::RunCount,
                           In(&ProgramState::FirstTimeAgain));
    row.write = [](MainFrame& frame) {
        // The greatest count can't be counted on; it stays, as any step that fails leaves things as they are.
        const int runs = frame.State<ProgramState>().FirstTimeAgain;
        if (runs < std::numeric_limits<int>::max())
            frame.Store().WriteNumber(Keys::FirstTimeAgain, runs + 1);
    };
    return row;
}

// What is no entry of a colour table, such as one that a damaged file cut off, changes nothing: it would
// spoil every page that is coloured with it.
CarriedValue TextColorRow(int slot) {
    const SettingsKey& key = Keys::EdTextColor[slot];
    const auto place = In(&EditorOptions::ColorTable, slot);
    CarriedValue row = Row(key, ReadAt::EditorValues, WrittenAt::TextColors, place);
    row.read = [key, place](MainFrame& frame) {
        static const QRegularExpression entry(QStringLiteral("\\A\\\\red\\d+\\\\green\\d+\\\\blue\\d+\\z"));
        if (const QString color = frame.Store().Read(key); entry.match(color).hasMatch())
            place(frame) = color;
    };
    return row;
}

// Of several separators at the end exactly one goes. The root of a file system is nothing but its separator,
// and stays.
QString WithoutLastSeparator(const QString& folder) {
    if (folder.size() <= 1 || !folder.endsWith(Path::Separator(folder)))
        return folder;
    return folder.chopped(1);
}

CarriedValue LastDirRow() {
    const auto place = In(&DialogState::LastDir);
    CarriedValue row = Row(Keys::LastDir(), ReadAt::LastDir, WrittenAt::EditorValues, place);
    row.read = [key = row.key, place](MainFrame& frame) {
        place(frame) = WithoutLastSeparator(frame.Store().Read(key));
    };
    return row;
}

// The button's face holds the caption that is written.
CarriedValue ButtonCaptionRow(int n) {
    CarriedValue row =
        Row(Keys::ButCap(n), ReadAt::Lists, WrittenAt::UserButtons, In(&UserButtonTexts::ButCap, n));
    row.write = [key = row.key, n](MainFrame& frame) {
        frame.Store().Write(key, frame.Picture2().Caption(n));
    };
    return row;
}

void AddLists(std::vector<CarriedValue>& rows) {
    for (int n = 0; n < RecentFiles::Count; ++n)
        rows.push_back(
            Row(Keys::MenuArray(n), ReadAt::Lists, WrittenAt::RecentFiles, In(&ProgramState::MenuArray, n)));
    for (int n = 0; n < UserButtons::Count; ++n) {
        rows.push_back(
            Row(Keys::FirstBut(n), ReadAt::Lists, WrittenAt::UserButtons, In(&UserButtonTexts::FirstBut, n)));
        rows.push_back(Row(Keys::SecondBut(n), ReadAt::Lists, WrittenAt::UserButtons,
                           In(&UserButtonTexts::SecondBut, n)));
        rows.push_back(ButtonCaptionRow(n));
    }
}

std::vector<CarriedValue> Table() {
    using enum ReadAt;
    using To = WrittenAt;
    std::vector<CarriedValue> rows = {
        Row(Keys::UseAutoFill, UseAutoFill, To::Never, In(&EditorOptions::UseAutoFill)),
        Row(Keys::MainFormHeight, Geometry, To::Geometry, In(&ProgramState::MainFormHeight)),
        Row(Keys::MainFormWidth, Geometry, To::Geometry, In(&ProgramState::MainFormWidth)),
        Row(Keys::MainFormLeft, Geometry, To::Geometry, In(&ProgramState::MainFormLeft)),
        Row(Keys::MainFormTop, Geometry, To::Geometry, In(&ProgramState::MainFormTop)),
        Row(Keys::StandardDic(), Dictionaries, To::Dictionaries, InSpellChecker(&SpellChecker::StandardDic)),
        Row(Keys::CustomDic(), Dictionaries, To::Dictionaries, InSpellChecker(&SpellChecker::CustomDic)),
        RunCountRow(),
        TextColorRow(0),
        TextColorRow(1),
        TextColorRow(2),
        TextColorRow(3),
        TextColorRow(4),
        TextColorRow(5),
        Row(Keys::UserTemplate, EditorValues, To::EditorValues, In(&ProgramState::UserTemplate)),
        Row(Keys::LinkColor, EditorValues, To::LinkColor, In(&ProgramState::LinkColor)),
        Row(Keys::TemplateWindowState, EditorValues, To::EditorValues,
            In(&ProgramState::TemplateWindowState)),
        Row(Keys::Background2, EditorValues, To::EditorValues, In(&EditorOptions::Background2)),
        Row(Keys::ReloadFlag, EditorValues, To::EditorValues, In(&ProgramState::ReloadFlag)),
        Row(Keys::TheOpenFile, EditorValues, To::EditorValues, In(&ProgramState::TheOpenFile)),
        LastDirRow(),
        Row(Keys::MainWindowState, ProgramValues, To::WindowState, In(&ProgramState::MainWindowState)),
        Row(Keys::Web, ProgramValues, To::Never, In(&ProgramState::WebPath)),
        Row(Keys::FTP, ProgramValues, To::Never, In(&ProgramState::FtpPath)),
        Row(Keys::LocalPreview, ProgramValues, To::Never, In(&ProgramState::LocalPreview)),
        Row(Keys::LocalFTP, ProgramValues, To::Never, In(&ProgramState::LocalFTP)),
    };
    AddLists(rows);
    return rows;
}

} // namespace

CarriedValues::CarriedValues(MainFrame& frame) : frame_(frame), rows_(Table()) {}

void CarriedValues::Read(ReadAt step) const {
    for (const CarriedValue& row : rows_)
        if (row.readAt == step)
            row.read(frame_);
}

void CarriedValues::Write(WrittenAt step) const {
    for (const CarriedValue& row : rows_)
        if (row.writtenAt == step)
            row.write(frame_);
}
