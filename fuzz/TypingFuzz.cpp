// The typing engine under random keys: the text, the caret and every colour are those of a plain model that
// knows nothing of the control. With the auto-fill lists on, where there is no model, nothing may break,
// every character has a colour, and one that the user picks is written.
#include "editor/autofill/frmDropDown.h"
#include "editor/color/WriteColoredText.h"
#include "editor/typing/CharacterTable.h"
#include "FuzzApplication.h"
#include "platform/text/ColorNumber.h"
#include "platform/text/RtfReader.h"
#include "platform/values/Cp1252.h"
#include "support/TypingFrame.h"

#include <cstdlib>
#include <optional>
#include <utility>
#include <vector>

namespace {

/// What the keys of one document must leave behind.
class Model {
  public:
    QString text;
    std::vector<ColorNumber> colors;
    qsizetype start = 0;
    qsizetype length = 0;

    void Replace(qsizetype from, qsizetype count, const QString& by,
                 const std::vector<ColorNumber>& byColors) {
        text.replace(from, count, by);
        const auto at = colors.erase(colors.begin() + from, colors.begin() + from + count);
        colors.insert(at, byColors.begin(), byColors.end());
        start = from + by.size();
        length = 0;
    }

    /// Over a selection what is typed has the colour of its first character.
    void Write(const QString& by) {
        const ColorNumber color = length > 0 ? colors[static_cast<size_t>(start)] : 0;
        Replace(start, length, by, std::vector<ColorNumber>(static_cast<size_t>(by.size()), color));
    }

    void Press(QChar c, Frame& frame) {
        if (c == u'\b')
            Backspace();
        else if (c == u'\r')
            Write(QStringLiteral("\r\n"));
        else if (c != u'>' || !CloseTag(frame))
            Write(EntityOf(Cp1252::ToCode(c)).isEmpty() ? QString(c) : QString(EntityOf(Cp1252::ToCode(c))));
    }

  private:
    void Backspace() {
        if (length == 0 && start > 0) {
            length = start > 1 && QStringView(text).sliced(start - 2, 2) == u"\r\n" ? 2 : 1;
            start -= length;
        }
        Replace(start, length, QString(), {});
    }

    bool CloseTag(Frame& frame) {
        // Positions count from 1 here.
        const qsizetype caret = start;
        qsizetype open = 0;
        for (qsizetype i = caret - 1; i > 0 && (open <= 0 || open >= caret); --i)
            open = text.indexOf(u'<', i - 1) + 1;
        if (open <= 0 || open >= caret || text.indexOf(u'>', open - 1) + 1 < caret)
            return false;
        QString tag = text.mid(open - 1, caret - open + 1) + u'>';
        const QStringView color = TagColorCode(tag);
        tag.replace(QStringLiteral("\r\n"), QStringLiteral("\\par "));
        const RtfText written = ReadRtf(RtfHeader(frame) + color.toString() + tag + u'}', RawLineEnds::Keep);
        std::vector<ColorNumber> writtenColors;
        qsizetype from = 0;
        for (const RtfRun& run : written.runs) {
            const QString stretch = QString::fromUtf8(written.text.sliced(from, run.length));
            writtenColors.insert(writtenColors.end(), static_cast<size_t>(stretch.size()),
                                 std::max(run.color, 0));
            from += run.length;
        }
        Replace(open - 1, caret - open + 1 + length, QString::fromUtf8(written.text), writtenColors);
        return true;
    }
};

void Require(bool held) {
    if (!held)
        std::abort();
}

void Compare(TypingFrame& frame, const Model& model) {
    RichTextBox& box = frame.Box();
    Require(box.Text() == model.text);
    Require(box.SelStart() == model.start);
    Require(box.SelLength() == model.length);
    for (int i = 0; i < box.TextLength(); ++i)
        Require(box.ColorAt(i) == model.colors[static_cast<size_t>(i)]);
}

/// A place in the text, never between a CR and its LF, where no caret stands.
int PlaceFor(const QString& text, int wanted) {
    const auto place = static_cast<int>(text.isEmpty() ? 0 : wanted % (text.size() + 1));
    const bool splits =
        place > 0 && place < text.size() && text.at(place - 1) == u'\r' && text.at(place) == u'\n';
    return splits ? place + 1 : place;
}

/// Half of the bytes are the keys that matter to tags.
QChar KeyOf(uint8_t byte) {
    static constexpr char16_t common[] = u"<><>=\"/ab \r\b\\{}!-img";
    if (byte >= 128 && byte < 192)
        return common[static_cast<size_t>(byte) % (std::size(common) - 1)];
    if (byte < 32 || byte == 127)
        return u'<';
    return Cp1252::FromCode(byte);
}

void Move(TypingFrame& frame, Model& model, uint8_t from, uint8_t to) {
    const int first = PlaceFor(model.text, from);
    const int second = PlaceFor(model.text, to);
    model.start = std::min(first, second);
    model.length = from % 4 == 0 ? std::max(first, second) - model.start : 0;
    frame.Box().SetSelStart(static_cast<int>(model.start));
    frame.Box().SetSelLength(static_cast<int>(model.length));
}

/// The byte 1 moves the caret, by the two bytes behind it.
void TypeAgainstModel(TypingFrame& frame, const uint8_t* data, size_t size) {
    Model model;
    for (size_t i = 0; i < size; ++i) {
        if (data[i] == 1 && i + 2 < size) {
            Move(frame, model, data[i + 1], data[i + 2]);
            i += 2;
            continue;
        }
        const QChar c = KeyOf(data[i]);
        frame.Type(QString(c));
        model.Press(c, frame);
        Compare(frame, model);
    }
}

/// What a person picks who is asked for a colour: Cancel now and then.
std::optional<ColorNumber> Pick(size_t number) {
    if (number % 4 == 0)
        return std::nullopt;
    constexpr size_t step = 0x0A3B11;
    return static_cast<ColorNumber>(number * step % 0x1000000);
}

/// A key asks for one colour at the most, and writes the one that is picked.
void CheckPick(TypingFrame& frame, std::optional<ColorNumber> pick) {
    const auto asked = std::exchange(frame.prompts.asked, {});
    if (asked.isEmpty())
        return;
    Require(asked.size() == 1 && asked.first().kind == Asked::Color);
    const RichTextBox& box = frame.Box();
    Require(!pick || box.Text().first(box.SelStart()).endsWith(u'#' + ColorHex(*pick)));
}

void TypeWithLists(TypingFrame& frame, const uint8_t* data, size_t size) {
    static constexpr Qt::Key keys[] = {Qt::Key_Up, Qt::Key_Down, Qt::Key_Right, Qt::Key_Escape, Qt::Key_Left};
    for (size_t i = 0; i < size; ++i) {
        const std::optional<ColorNumber> pick = Pick(i + size);
        frame.prompts.colorAnswers = {pick};
        if (data[i] == 2 && frame.PausePending())
            frame.Pause();
        else if (data[i] == 3)
            frame.Type("<img ");
        else if (data[i] == 4)
            frame.Type("<table bordercolor\r");
        else if (data[i] >= 5 && data[i] < 10)
            frame.Key(keys[data[i] - 5]);
        else
            frame.Type(QString(KeyOf(data[i])));
        CheckPick(frame, pick);
        RichTextBox& box = frame.Box();
        Require(box.SelStart() + box.SelLength() <= box.TextLength());
        for (int at = 0; at < box.TextLength(); ++at)
            Require(box.ColorAt(at) >= 0);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    StartFuzzApplication();
    static TypingFrame& frame = *new TypingFrame;

    frame.LoadedForms().Unload<frmDropDown>();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    frame.active->Timer1.stop();
    frame.Box().SetText(QString());
    frame.Box().SetSelColor(0);
    frame.Box().EmptyUndoBuffer();
    frame.Box().SetFocus();
    if (size == 0)
        return 0;
    const bool lists = data[0] % 2 != 0;
    frame.Stream() = ColorStream();
    frame.Flags().DocumentOpened();
    frame.Flags().StopFollowing();
    frame.Flags().TakePick();
    frame.Flags().RememberCaret(0);
    frame.State<EditorOptions>().UseAutoFill = lists;
    if (lists)
        TypeWithLists(frame, data + 1, size - 1);
    else
        TypeAgainstModel(frame, data + 1, size - 1);
    frame.Box().streams.clear();
    frame.statuses.clear();
    frame.selectedTabs.clear();
    return 0;
}
