// Keeps a copy of every changed document, so that what was typed outlives a crash.
#pragma once

#include "app/recovery/CopyWriter.h"

#include <chrono>
#include <memory>
#include <QDeadlineTimer>
#include <QElapsedTimer>
#include <QObject>
#include <QString>
#include <QTimer>
#include <vector>

class Document;
class Frame;
class frmTemplate;

/// How often documents are copied, one value a frame.
struct RecoveryPace {
    /// From a first change to its copy, so that what comes at once is copied once.
    std::chrono::milliseconds settling = std::chrono::seconds(1);
    /// From one round of copies to the next.
    std::chrono::milliseconds shortest = std::chrono::seconds(5);
    /// The least pause as a multiple of what the last round cost: 50 makes 2 % of the time.
    int timesTheCost = 50;
};

/// A document has a copy from soon after its first change until it is saved or the user has given the change
/// up. One whose window goes unsaved leaves its copy for the next start (OfferCopies). The bytes of a text
/// are taken between two events, all else is done by another thread. While nothing is changed, and with the
/// setting Recovery off, there is neither timer nor thread nor file.
class Recovery final : public QObject {
    Q_OBJECT

  public:
    Recovery(Frame& frame, QObject* parent);
    /// Waits until what the documents left is on the disk.
    ~Recovery() override;

    /// Follows a document from its birth on.
    void Watch(frmTemplate& document);
    /// A document that came from a copy goes on under it: as it stands, it is copied already.
    void Adopt(Document& document, std::shared_ptr<RunCopies> run, const QString& file);
    /// Leaves a copy for the next start of what no window holds any more: the bytes that a file was to get.
    void Leave(const QString& path, QByteArrayView bytes);

    /// Whether something is changed that has no copy yet; with the setting off nothing waits.
    bool IsWaiting() const { return isInRound_ || timer_.isActive(); }
    /// Zero where no round is to come.
    std::chrono::milliseconds UntilNextRound() const;

  private:
    struct Kept {
        Document* document;
        std::shared_ptr<RunCopies> run = {}; ///< null before the first copy, as its file is empty
        QString file = {};
        bool isDue = false; ///< changed since the last copy
    };

    void Follow(Document& document);
    void WindowGoes(const Document& document);
    Kept* Find(const Document* document);
    void Forget(const Document* document);
    void Drop(const Document* document);

    bool IsOn() const;
    bool IsAnyDue() const;
    void Schedule();
    void BeginRound();
    void CopyNext();
    void EndRound();
    bool Copy(Kept& kept);
    void Written(const QString& file, bool done, std::chrono::nanoseconds took);
    std::shared_ptr<RunCopies> OwnRun();

    Frame& frame_;
    std::vector<Kept> kept_;
    std::weak_ptr<RunCopies> ownRun_; ///< there is none without a copy
    std::vector<std::shared_ptr<RunCopies>> left_;

    QTimer timer_;         ///< runs while a round is to come
    QDeadlineTimer pause_; ///< no round begins before
    bool isInRound_ = false;
    QElapsedTimer sinceRound_;
    std::vector<const Document*> round_; ///< those that this round has still to copy
    QString writing_;                    ///< the file that this round waits for
    std::chrono::nanoseconds cost_{};    ///< of this round
    CopyWriter writer_;                  ///< last: it goes first, and has nothing left to do then
};
