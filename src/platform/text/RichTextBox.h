// The text control of a document: plain text, one colour per character, and the events of typing.
#pragma once

#include "platform/text/AccessibleText.h"
#include "platform/text/AssistantNews.h"
#include "platform/text/InputMethod.h"
#include "platform/text/KeyInput.h"
#include "platform/text/TextAids.h"
#include "platform/text/TextBuffer.h"
#include "platform/text/TextColors.h"
#include "platform/text/TextEditing.h"
#include "platform/text/TextSearch.h"

#include <optional>
#include <Qsci/qsciscintillabase.h>
#include <QString>
#include <span>
#include <utility>

class QPainter;
class QRectF;
enum class RawLineEnds;

/// The rich-text control: the face of the classes that it is made of. Text is a QString of the characters
/// that the document holds; positions count from 0 as a QString counts, in UTF-16 units, and a CR and an LF
/// are one each.
///
/// Every assignment (`Text`, `SelText`, `SelRTF`) is one undo step, and undo and redo bring the colours back.
/// Signals come after the event or call that caused them is complete, in the order Change, SelChange; one
/// Change for one event or call, however many steps it took.
class RichTextBox : public QsciScintillaBase, public AccessibleText {
    Q_OBJECT
    Q_INTERFACES(AccessibleText)
    Q_PROPERTY(QString Text READ Text WRITE SetText)
    Q_PROPERTY(int SelStart READ SelStart WRITE SetSelStart)
    Q_PROPERTY(int SelLength READ SelLength WRITE SetSelLength)
    Q_PROPERTY(QString SelText READ SelText WRITE SetSelText)
    Q_PROPERTY(int SelColor READ SelColor WRITE SetSelColor)
    Q_PROPERTY(QString SelRTF READ SelRTF WRITE SetSelRTF)
    Q_PROPERTY(QString TextRTF READ TextRTF WRITE SetTextRTF)
    Q_PROPERTY(int RightMargin READ RightMargin WRITE SetRightMargin)
    Q_PROPERTY(int BackColor READ BackColor WRITE SetBackColor)
    Q_PROPERTY(QFont Font READ Font WRITE SetFont)
    Q_PROPERTY(bool Enabled READ Enabled WRITE SetEnabled)

  public:
    /// The window messages that the program sends to the control, by their numbers.
    enum class Message { CanUndo = 198, LeftButtonUp = 514, Cut = 768, Copy = 769, Paste = 770, Undo = 772 };

    /// Options of Find, combined by OR.
    using FindOption = TextSearch::Option;
    static constexpr FindOption WholeWord = TextSearch::WholeWord;
    static constexpr FindOption MatchCase = TextSearch::MatchCase;

    explicit RichTextBox(QWidget* parent = nullptr);
    ~RichTextBox() override;

    /// The characters that the document holds, at first those of code page 1252. What any assignment, key,
    /// paste or drop brings in is held to them: any other becomes its decimal reference (HeldBy). Setting it
    /// leaves the text alone.
    CharacterSet Holds() const { return editing_.Holds(); }
    void SetHolds(CharacterSet characters) { editing_.SetHolds(characters); }
    /// A text as an assignment would bring it in, for those who count on its length.
    QString Held(const QString& text) const { return HeldBy(Holds(), text); }

    /// The whole text. Assigning puts the caret at 0 and writes in the colour at the caret.
    QString Text() const;
    void SetText(const QString& text);
    /// The whole text in UTF-8, as the control holds it: ten megabytes are had in a few milliseconds.
    QByteArray Utf8Text() const { return buffer_.CopyOfBytes(); }
    /// The number of characters of the text, without fetching it.
    int TextLength() const override;
    /// The characters [start, start + length), cut to what there is; never fetches more of the text.
    QString TextRange(int start, int length) const override;
    /// The character at a position, or a null QChar outside the text. Constant time.
    QChar CharAt(int position) const;
    /// The colour of the character at a position (0-based), or -1 outside the text.
    ColorNumber ColorAt(int position) const override;

    /// The start of the selection, or the caret. Assigning takes the selection away and moves the caret
    /// there; a value behind the text's end is cut to it, a negative one is refused: nothing changes.
    int SelStart() const override;
    void SetSelStart(int position) override;
    /// The selection's length. Assigning keeps SelStart, and puts the caret behind the selection; a negative
    /// value is refused: nothing changes.
    int SelLength() const override;
    void SetSelLength(int length) override;
    /// The selected text. Assigning replaces the selection, in the colour at the caret, and leaves the caret
    /// behind the new text with nothing selected.
    QString SelText() const;
    void SetSelText(const QString& text);
    /// Takes many stretches out of the text in one step; what stays keeps its colours. They come in their
    /// order and don't overlap. The caret stands where the last one stood.
    void Remove(std::span<const CharRange> stretches);
    /// The colour of the selection's first character, or with nothing selected the colour that typed text
    /// gets. Assigning colours the selection, or with nothing selected what is typed or assigned next there,
    /// until the caret moves away. Undo counts no colouring, but coloured text has changed.
    ColorNumber SelColor() const;
    void SetSelColor(ColorNumber color);
    /// The selection as RTF. Assigning replaces the selection by the text and colours of an RTF text
    /// (RtfReader); the caret stands behind it.
    QString SelRTF() const;
    virtual void SetSelRTF(const QString& rtf);
    /// The same of the whole text. Assigning puts the caret at 0.
    QString TextRTF() const;
    void SetTextRTF(const QString& rtf);

    /// How raw line ends in RTF are taken: by default as the system's own text files ask.
    RawLineEnds RawLineEndMode() const { return rawLineEnds_; }
    void SetRawLineEndMode(RawLineEnds mode) { rawLineEnds_ = mode; }

    /// 0 wraps lines at the window's edge; any other value, in twips, is a right margin far away: no wrap.
    int RightMargin() const;
    void SetRightMargin(int twips);
    ColorNumber BackColor() const override;
    void SetBackColor(ColorNumber color);
    QFont Font() const override;
    void SetFont(const QFont& font);
    /// How large the text is drawn on the screen, in percent of its font. Nothing else knows of it: neither
    /// Font nor what prints or is copied. Where the caret is in view it stays there.
    int Zoom() const { return zoom_; }
    void SetZoom(int percent);
    /// While off, keys, mouse and drops change nothing; the focus stays where it is.
    bool Enabled() const override;
    void SetEnabled(bool enabled);
    void SetFocus();

    /// Searches forward for a text from start (0-based) to end, or to the end of the text when end is left
    /// out; with an end alone it searches from SelStart, with neither given the selection if there is one,
    /// else the whole text. A match lies in the range whole. Case is ignored without MatchCase. On success
    /// selects the match and returns its position; else returns -1 and leaves the selection alone. An empty
    /// text is never found.
    int Find(const QString& text, std::optional<int> start = std::nullopt,
             std::optional<int> end = std::nullopt, int options = 0);
    /// Replaces all matches from start (0-based) on, searched for as Find does, as one undo step: each in the
    /// colour of its first character. The search goes on so many characters behind a match as gap says. The
    /// caret stands behind the last one; nothing changes where there is none. Returns how many there were.
    int ReplaceEach(const QString& text, const QString& replacement, int start, int gap, int options = 0);
    /// The position of the first given character at or after a position (0-based), or -1. Looks at no more of
    /// the text than needed, and no selection changes.
    int FindForward(QChar character, int from) const;
    /// The line of a position, both 0-based. A line ends with CR LF, CR or LF.
    int GetLineFromChar(int position) const;

    /// Carries out a window message. CanUndo answers 1 or 0, all others 0.
    int Send(Message message);
    /// Forgets all undo steps: what stands now is where undo ends.
    void EmptyUndoBuffer();
    /// The line end of the document: that of its first line, CR LF where there is none.
    QString LineEnd() const;

    /// Draws the text from a position (0-based) in its colours on white, into a page's rectangle in the
    /// painter's units, and returns the first position not drawn. With draw off only measures.
    int FormatRange(bool draw, QPainter& painter, const QRectF& page, int from);

    /// The caret in pixels of the viewport: left edge and top of its line.
    QPoint CaretPixel() const;
    /// The height of a line, in pixels.
    int LineHeight() const;
    /// The caret: the end of the selection that keys move.
    int CaretPosition() const override;
    /// Where the line of a position starts, and where the next one does (the text's end for the last).
    int LineStart(int position) const override;
    int NextLineStart(int position) const override;
    /// A character's place and the character nearest to a place, in pixels of the viewport.
    QRect CharacterRect(int position) const override;
    int PositionAt(QPoint pixel) const override;
    /// Brings a stretch of the text into view; the caret stays.
    void ScrollTo(int start, int end) override;
    /// Replaces the selection as pasting does: characters that a document can't hold become references, line
    /// ends become the document's.
    void InsertForeign(const QString& text) override;
    /// The text that InsertForeign would put in.
    QString Incorporated(const QString& text) const;

    /// What assistive technology is told.
    AssistantNews& News() { return news_; }
    /// What is drawn beside the text.
    TextAids& Aids() { return aids_; }

    /// Painting waits while a hold lives: what others know as hiding the control during a write. So does
    /// scrolling: only where the caret stands at the end is brought into view, since each look at a place
    /// lays its lines out.
    class PaintHold {
      public:
        explicit PaintHold(RichTextBox& box);
        ~PaintHold();
        PaintHold(const PaintHold&) = delete;
        PaintHold& operator=(const PaintHold&) = delete;

      private:
        RichTextBox& box_;
    };

  Q_SIGNALS:
    void Change();
    void SelChange();
    void GotFocus();
    void LostFocus();
    void DblClick();
    /// A key goes down. KeyCode is the virtual key code (27 Esc, 37 to 40 the arrows, 48 to 57 the digits);
    /// Shift adds 1 for Shift, 2 for Ctrl, 4 for Alt. A handler that sets KeyCode to 0 swallows the key.
    void KeyDown(int& KeyCode, int Shift);
    /// A key yields a character: its code of code page 1252 (8 Backspace, 13 Enter); where the document holds
    /// all of Unicode, one from outside the code page comes by its Unicode number. A handler that sets it to
    /// 0 swallows it; another code up to 255 is typed in its place. It comes for input methods too, character
    /// by character.
    void KeyPress(int& KeyAscii);
    /// Mouse buttons: 1 left, 2 right, 4 middle; x and y in pixels of the viewport.
    void MouseDown(int Button, int Shift, QPoint at);
    void MouseUp(int Button, int Shift, QPoint at);

  protected:
    bool event(QEvent* event) override;
    bool viewportEvent(QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    QVariant inputMethodQuery(Qt::InputMethodQuery query) const override;
    void keyPressEvent(QKeyEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    bool canInsertFromMimeData(const QMimeData* source) const override;
    QByteArray fromMimeData(const QMimeData* source, bool& rectangular) const override;
    QMimeData* toMimeData(const QByteArray& text, bool rectangular) const override;

  private:
    /// Around every call and event that may change something: when the outermost ends, the box settles.
    class Settling {
      public:
        /// A user's event that arrives while another one waits in an event loop of its own settles by itself.
        explicit Settling(RichTextBox& box, bool outermost = false);
        ~Settling();
        Settling(const Settling&) = delete;
        Settling& operator=(const Settling&) = delete;

      private:
        RichTextBox& box_;
        int outer_;
    };

    long Sci(unsigned int message, long wParam = 0, long lParam = 0) const;
    void SetUp();
    void ApplyStyles();
    void ApplyPalette();
    /// The font as it is drawn.
    QFont ZoomedFont() const;
    bool CaretInView() const;

    void Settle();
    void TakeIncoming();
    void BeforeModification(int position, int type, int length);
    /// Carries out a handler of another object: it meets a settled box, and its own calls settle by
    /// themselves.
    template <typename Handler> void Outside(Handler handler) {
        const int depth = std::exchange(depth_, 0);
        Settle();
        handler();
        depth_ = depth;
    }

    void ReplaceByRtf(ByteRange range, const QString& rtf);
    /// Puts the caret at the text's start, as every assignment of the whole text does.
    void GoToStart();
    QPoint PixelOfByte(int byte) const;

    void PastePrimarySelection(QPoint at);
    void ReleaseLeftButton();
    /// A mouse event as the base class may see it.
    QMouseEvent ForBase(const QMouseEvent& event);

    TextBuffer buffer_{*this};
    TextColors colors_{*this, buffer_};
    TextSearch search_{buffer_};
    TextEditing editing_{*this, buffer_, colors_};
    KeyInput keys_;
    InputMethod inputMethod_;
    AssistantNews news_{*this};
    TextAids aids_{*this, buffer_};

    QFont font_;
    int zoom_ = 100;
    ColorNumber backColor_ = 0xffffff;
    int rightMargin_ = 0;
    RawLineEnds rawLineEnds_;
    bool enabled_ = true;
    int holds_ = 0;
    QPointF lastMouse_;

    int depth_ = 0;
    bool changed_ = false;
    bool caretMovedByEdit_ = false;
    ByteRange lastSelection_{0, 0};
    int lastSelStart_ = 0;
    int lastSelLength_ = 0;
};
