// The spell check of a document: piece by piece, from tag to tag.
#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QTimer>

class EscapeKey;
class Frame;
class RichTextBox;
class SpellChecker;

/// What a run keeps from step to step. Positions count from 1.
struct SpellState {
    bool SpellKeepGoing = false; ///< until the user cancels
    bool SpellFinished = false;  ///< the end of the document was reached
    int SpellPos = 1;            ///< where the piece starts
    int TagPosition = 0;         ///< the next "<", 0 where there is none
    int DocumentLength = 0;      ///< as it was at the start of the run
    QString SpellPiece;
};

/// One run at a time. The text is read afresh from the active document for each piece; the positions are not
/// adjusted to what corrections add or take. Where the run takes long it goes on in turns of the event loop,
/// and Esc, or closing the document, cancels it.
class SpellRun final : public QObject {
    Q_OBJECT

  public:
    SpellRun(Frame& frame, SpellChecker& checker, QObject* parent);

    /// Does nothing while a run is under way.
    void SpellCheckDocument();
    bool Running() const { return running_; }

    // What the spelling control tells.
    void WordFound();
    void PieceChanged();
    void CheckFinished();

  Q_SIGNALS:
    /// The run is over, and its box was read.
    void Ended();

  private:
    void Turn();
    /// Takes the next piece and checks it; false where the run is over, or waits.
    bool NextPiece();
    bool AfterPiece();
    void TakePiece(RichTextBox& text);
    void StartOver();
    void Idle();
    void NoDictionary();
    void NotAdded(const QString& path);
    void Report();
    void Finish();
    void Say(const QString& text);
    bool DocumentClosed() const;
    /// The text that the piece is from; null once its document is closed.
    RichTextBox* PieceText() const;
    /// The piece still stands where it was taken from.
    bool PieceStands() const;
    void LockText(bool lock);
    void Follow();

    Frame& frame_;
    SpellChecker& checker_;
    SpellState& state_;
    QPointer<QWidget> document_; ///< the window that the piece is from
    QPointer<RichTextBox> text_; ///< the text in it
    QPointer<EscapeKey> escape_;
    QTimer turn_;
    QElapsedTimer round_;
    bool running_ = false;
    bool assigning_ = false; ///< within the assignment of a piece
    bool checking_ = false;  ///< the piece is not finished
    bool stale_ = false;     ///< the piece was edited under its check: it is taken anew
    bool told_ = false;      ///< the status bar tells of the run
    bool followed_ = false;  ///< a piece was taken
};
