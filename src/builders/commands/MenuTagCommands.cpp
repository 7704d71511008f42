#include "builders/commands/MenuTagCommands.h"

#include "builders/lists/frmBulletList.h"
#include "editor/color/InsertTag.h"
#include "editor/frame/ActiveText.h"
#include "editor/frame/Commands.h"
#include "editor/frame/Frame.h"
#include "platform/desktop/Prompts.h"
#include "platform/text/RichTextBox.h"
#include "platform/values/Dates.h"

#include <QDate>
#include <QLocale>

namespace {

struct TagRow {
    const char* name;
    const char* open;
    const char* close = "";
};

// A leading blank is for use inside a tag that is being written; where the caret stands is not looked at.
const TagRow tagRows[] = {
    {"mnuBIG", "<BIG>", "</BIG>"},
    {"mnuSMALL", "<SMALL>", "</SMALL>"},
    {"mnuBlink", "<BLINK>", "</BLINK>"},
    {"mnuSUB", "<SUB>", "</SUB>"},
    {"mnuSUP", "<SUP>", "</SUP>"},
    {"mnuEm", "<EM>", "</EM>"},
    {"mnuStrong", "<STRONG>", "</STRONG>"},
    {"mnuS", "<S>", "</S>"},
    {"mnuCODE", "<CODE>", "</CODE>"},
    {"mnuSAMP", "<SAMP>", "</SAMP>"},
    {"mnuKBD", "<KBD>", "</KBD>"},
    {"mnuCITE", "<CITE>", "</CITE>"},
    {"mnuTT", "<TT>", "</TT>"},
    {"mnuBlockQuote", "<BLOCKQUOTE>", "</BLOCKQUOTE>"},
    {"mnuNOBR", "<NOBR>", "</NOBR>"},
    {"mnuMar", "<MARQUEE>", "</MARQUEE>"},
    {"mnuMap", "<MAP>", "</MAP>"},
    {"mnuBold", "<B>", "</B>"},
    {"mnuItalic", "<I>", "</I>"},
    {"mnuUnderline", "<U>", "</U>"},
    {"mnuCenter", "<CENTER>", "</CENTER>"},

    {"mnuBreak", "<BR>"},
    {"mnuWBR", "<WBR>"},
    {"mnuBGPROP", " BGPROPERTIES=FIXED"},
    {"mnuControls", " CONTROLS "},
    {"mnuFileOpen", " START=FILEOPEN "},
    {"mnuMouseOver", " START=MOUSEOVER "},
    {"mnuMapArea", "<AREA SHAPE=\"\" COORDS=\"\" HREF=\"\">"},
};

// Decimal throughout, also for characters that need no entity.
struct EntityRow {
    const char* name;
    int code;
};

const EntityRow entityRows[] = {
    {"mnuSpace", 160},     {"mnuExclamation", 33}, {"mnuQuotation", 34},     {"mnuNumber", 35},
    {"mnuDollar", 36},     {"mnuPercent", 37},     {"mnuAmpersand", 38},     {"mnuApostrophe", 39},
    {"mnuLeftP", 40},      {"mnuRightP", 41},      {"mnuAsterisk", 42},      {"mnuPlusSign", 43},
    {"mnuLessThan", 60},   {"mnuEqual", 61},       {"mnuGreaterThan", 62},   {"mnuQuestion", 63},
    {"mnuAT", 64},         {"mnuLeftSQ", 91},      {"mnuRightSQ", 93},       {"mnuTilde", 126},
    {"mnuInEx", 161},      {"mnuCent", 162},       {"mnuCopyright", 169},    {"mnuRegistered", 174},
    {"mnuOneFourth", 188}, {"mnuOneHalf", 189},    {"mnuThreeFourths", 190},
};

// An attribute or tag around one value that is asked for. A Cancel counts as an empty value. The rows without
// quotes end in a blank, and BEHAVIOR writes BEHAVE: both are meant.
struct AskingRow {
    const char* name;
    const char* prompt;
    const char* before;
    const char* after;
    const char* title = "";
};

const AskingRow askingRows[] = {
    {"mnuAligns", "Insert value: TOP, MIDDLE, or BOTTOM", " ALIGN=", " "},
    {"mnuBehavior", "Insert value: SCROLL, SLIDE, or ALTERNATE", " BEHAVE=", " "},
    {"mnuDirection", "Insert value: LEFT or RIGHT", " DIRECTION=", " "},
    {"mnuH", "Height amount:", " HEIGHT=", " "},
    {"mnuWidthAgain", "WIDTH amount:", " WIDTH=", " "},
    {"mnuScrollAm", "SCROLLAMOUNT value:", " SCROLLAMOUNT=", " "},
    {"mnuScrollD", "SCROLLDELAY value:", " SCROLLDELAY=", " "},
    {"mnuLOOP", "How many loops? or type INFINITE", " LOOP=", " "},
    {"mnuDYN", "Input DYNSRC URL:", " DYNSRC=\"", "\" "},
    {"mnuFace", "Font Name:", " FACE=\"", "\" "},
    {"mnuLeftMargin", "Insert Left Margin Value", " LEFTMARGIN=\"", "\""},
    {"mnuTopMargin", "Insert Top Margin Value", " TOPMARGIN=\"", "\""},
    {"mnuBASE", "Input Font Size:", "<BASEFONT SIZE=\"", "\">", "Base Font Size"},
    {"mnuBGSOUND", "Give URL name:", "<BGSOUND SRC=\"", "\">"},
};

void Insert(Frame& frame, const QString& open, const QString& close = QString()) {
    InsertTag(frame, open, close, KeepCase::No);
}

void AskAndInsert(Frame& frame, const AskingRow& row) {
    if (!frame.ActiveForm())
        return;
    const QString value =
        frame.Ask().InputBox(frame.Window(), QString::fromLatin1(row.prompt), QString::fromLatin1(row.title));
    Insert(frame, QString::fromLatin1(row.before) + value + QString::fromLatin1(row.after));
}

void mnuImageMap_Click(Frame& frame) {
    if (!frame.ActiveForm())
        return;
    const QString name =
        frame.Ask().InputBox(frame.Window(), QStringLiteral("Enter Map Name:"), ProgramTitle);
    if (name.isEmpty())
        return;
    Insert(frame, QStringLiteral("<MAP NAME=\"") + name + QStringLiteral("\">"), QStringLiteral("</MAP>"));
}

// The items of a definition list get "<LI>" and no definition term: that is what this command writes.
void mnuDef_Click(Frame& frame) {
    RichTextBox* txtInput = ActiveText(frame);
    if (!txtInput)
        return;
    if (txtInput->SelLength() == 0)
        ShowBulletList(frame, ListKind::Definitions);
    else
        WrapSelectionAsList(frame, QStringLiteral("<DL>"), QStringLiteral("</DL>"), false);
}

void mnuTimeDate_Click(Frame& frame) {
    Insert(frame, LongDate(QDate::currentDate(), QLocale()));
}

} // namespace

void FillMenuTagCommands(Frame& frame) {
    CommandSet& commands = frame.Commands();
    for (const TagRow& row : tagRows)
        commands.Set(QString::fromLatin1(row.name), [&frame, &row] {
            Insert(frame, QString::fromLatin1(row.open), QString::fromLatin1(row.close));
        });
    for (const EntityRow& row : entityRows)
        commands.Set(QString::fromLatin1(row.name),
                     [&frame, &row] { Insert(frame, QStringLiteral("&#%1;").arg(row.code)); });
    for (const AskingRow& row : askingRows)
        commands.Set(QString::fromLatin1(row.name), [&frame, &row] { AskAndInsert(frame, row); });
    commands.Set(QStringLiteral("mnuImageMap"), [&frame] { mnuImageMap_Click(frame); });
    commands.Set(QStringLiteral("mnuDef"), [&frame] { mnuDef_Click(frame); });
    commands.Set(QStringLiteral("mnuTimeDate"), [&frame] { mnuTimeDate_Click(frame); });
}

void WrapSelectionAsList(Frame& frame, const QString& open, const QString& close, bool ignoreCase) {
    RichTextBox* active = ActiveText(frame);
    if (!active)
        return;
    const QString lineEnd = QStringLiteral("\r\n");
    RichTextBox& text = *active;
    ReplaceInSelection(frame, open + lineEnd + text.SelText() + close, lineEnd,
                       lineEnd + QStringLiteral("<LI>"), ignoreCase ? Compare::IgnoreCase : Compare::Exact);
}
