// The program with a user who never rests: types, saves, opens and closes by the dice, and notes on its
// output what became of each document. kills.py kills it, starts it again and compares.
//
// Usage: recovery_writer SITE SEED [FILE]. SITE is a folder with pages. Each note is a line of JSON. After
// the start, when what the last run left has been recovered, it notes "ready" and waits for a line of input.
#include "app/documents/frmTemplate.h"
#include "app/recovery/Recovery.h"
#include "app/run/RunProgram.h"
#include "app/run/SingleInstance.h"
#include "app/window/frmTarnwick.h"
#include "editor/frame/Commands.h"
#include "editor/frame/Forms.h"
#include "platform/desktop/Prompts.h"
#include "platform/store/Settings.h"
#include "platform/text/RichTextBox.h"
#include "support/ScriptedPrompts.h"

#include <chrono>
#include <functional>
#include <iostream>
#include <QApplication>
#include <QDir>
#include <QJsonDocument>
#include <QJsonObject>
#include <QKeyEvent>
#include <QTimer>
#include <random>
#include <string>
#include <unistd.h>
#include <vector>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

// Ten times as fast as a person works, and as the program copies.
constexpr RecoveryPace tenfold{.settling = 100ms, .shortest = 500ms, .timesTheCost = 5};
constexpr int longestPause = 60;
constexpr qsizetype mostDocuments = 6;
constexpr qsizetype longestText = 3000;

void Note(QJsonObject note) {
    const std::chrono::duration<double> now = std::chrono::steady_clock::now().time_since_epoch();
    note[u"t"_s] = now.count();
    const QByteArray line = QJsonDocument(note).toJson(QJsonDocument::Compact) + '\n';
    // In one piece, or not at all: the end may come at any moment.
    if (::write(STDOUT_FILENO, line.constData(), static_cast<size_t>(line.size())) != line.size())
        ::_exit(2);
}

/// Recovers all, and else answers as the dice fell.
class DicePrompts final : public Prompts {
  public:
    MsgAnswer closing = MsgAnswer::Yes;
    QString savePath;

    MsgAnswer MsgBox(QWidget*, const QString& text, MsgButtons buttons, MsgIcon, const QString&) override {
        Note({{u"asked"_s, text}});
        if (buttons == MsgButtons::OK)
            return MsgAnswer::OK;
        return buttons == MsgButtons::YesNo ? MsgAnswer::Yes : closing;
    }
    QString InputBox(QWidget*, const QString&, const QString&, const QString&) override { return {}; }
    std::optional<ColorNumber> ChooseColor(QWidget*, QByteArray&) override { return std::nullopt; }
    FileAnswer OpenFile(QWidget*, const FileRequest&) override { return {}; }
    FileAnswer SaveFile(QWidget*, const FileRequest&) override {
        return savePath.isEmpty() ? FileAnswer() : ScriptedPrompts::Picked(savePath);
    }
    void Beep() override {}
};

class User {
  public:
    User(frmTarnwick& frame, DicePrompts& prompts, QString site, unsigned seed)
        : frame_(frame), prompts_(prompts), site_(std::move(site)), dice_(seed) {
        QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { Turn(); });
        timer_.start(0);
    }

  private:
    int Throw(int sides) { return std::uniform_int_distribution(0, sides - 1)(dice_); }

    void Turn() {
        if (stage_ == Starting) {
            if (!frame_.isVisible())
                return;
            // Behind the question, which was called for first.
            stage_ = Asking;
            QMetaObject::invokeMethod(
                &frame_, [this] { Begin(); }, Qt::QueuedConnection);
        } else if (stage_ == Working) {
            Act();
            timer_.start(Throw(longestPause));
        }
    }

    void Begin() {
        for (frmTemplate* document : Documents())
            NoteState("recovered", *document);
        Note({{u"did"_s, u"ready"_s}});
        std::string line;
        std::getline(std::cin, line);
        stage_ = Working;
    }

    std::vector<frmTemplate*> Documents() {
        std::vector<frmTemplate*> documents;
        for (int i = 0; i < frame_.LoadedForms().Count(); ++i)
            if (auto* document = qobject_cast<frmTemplate*>(frame_.LoadedForms().At(i)))
                documents.push_back(document);
        return documents;
    }
    frmTemplate* Active() {
        Document* document = frame_.ActiveForm();
        return document ? qobject_cast<frmTemplate*>(&document->Window()) : nullptr;
    }
    int Id(frmTemplate& document) {
        if (!document.property("id").isValid())
            document.setProperty("id", ++lastId_);
        return document.property("id").toInt();
    }

    void NoteState(const char* did, frmTemplate& document, const QString& answer = {}) {
        Note({{u"did"_s, QLatin1String(did)},
              {u"id"_s, Id(document)},
              {u"path"_s, document.Caption()},
              {u"modified"_s, document.Modified()},
              {u"text"_s, document.txtInput().Text()},
              {u"answer"_s, answer}});
    }

    void Act() {
        frmTemplate* document = Active();
        const int dice = Throw(100);
        if (!document || dice < 4)
            return Open();
        if (dice < 6)
            return Step("new", [this] { frame_.NewDocument(); });
        if (dice < 10)
            return Switch();
        if (dice < 16 || document->txtInput().TextLength() > longestText)
            return Close(*document);
        if (dice < 24)
            return Save(*document);
        Type(*document);
    }

    /// What it does is done to the document that is active behind it.
    void Step(const char* did, const std::function<void()>& step) {
        step();
        if (frmTemplate* document = Active())
            NoteState(did, *document);
    }

    void Open() {
        if (static_cast<qsizetype>(Documents().size()) >= mostDocuments)
            return;
        const QStringList pages = QDir(site_).entryList(QDir::Files);
        const QString path = site_ + u'/' + pages[Throw(static_cast<int>(pages.size()))];
        Step("open", [this, &path] { frame_.OpenDocumentFile(path); });
    }

    void Switch() {
        const auto documents = Documents();
        frame_.ActivateDocument(*documents[static_cast<size_t>(Throw(static_cast<int>(documents.size())))]);
    }

    /// Now and then to a place where nothing can be saved.
    void PickSavePath() {
        const QString folder = Throw(4) == 0 ? site_ + u"/none/"_s : site_ + u'/';
        prompts_.savePath = folder + u"page%1.htm"_s.arg(Throw(1'000'000));
    }

    void Save(frmTemplate& document) {
        PickSavePath();
        NoteState("saving", document, document.Caption().isEmpty() ? prompts_.savePath : document.Caption());
        Step("saved", [this] { frame_.SaveActiveDocument(); });
    }

    void Close(frmTemplate& document) {
        PickSavePath();
        if (Throw(4) == 0)
            prompts_.savePath.clear();
        prompts_.closing = Throw(2) == 0 ? MsgAnswer::No : MsgAnswer::Yes;
        const bool saves = document.Modified() && prompts_.closing == MsgAnswer::Yes;
        const QString path = document.Caption().isEmpty() ? prompts_.savePath : document.Caption();
        NoteState("closing", document, saves ? u"yes "_s + path : u"no"_s);
        const int id = Id(document);
        document.Unload();
        // Its window stands until the event is over: what it was saved as can still be seen.
        Note({{u"did"_s, u"closed"_s},
              {u"id"_s, id},
              {u"path"_s, document.Caption()},
              {u"modified"_s, document.Modified()},
              {u"text"_s, document.txtInput().Text()}});
    }

    void Type(frmTemplate& document) {
        RichTextBox& text = document.txtInput();
        if (Throw(3) == 0)
            text.SetSelStart(Throw(text.TextLength() + 1));
        const QString word = u"d%1w%2"_s.arg(Id(document)).arg(++words_);
        for (const QChar c : Throw(5) == 0 ? u"<B>%1</B> "_s.arg(word) : word + u' ')
            for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
                QKeyEvent key(type, c.toUpper().unicode(), Qt::NoModifier, QString(c));
                QApplication::sendEvent(&text, &key);
            }
        NoteState("typed", document);
    }

    frmTarnwick& frame_;
    DicePrompts& prompts_;
    QString site_;
    std::mt19937 dice_;
    QTimer timer_;
    enum { Starting, Asking, Working } stage_ = Starting;
    int lastId_ = 0;
    int words_ = 0;
};

} // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QGuiApplication::setQuitOnLastWindowClosed(false);
    const QStringList arguments = QCoreApplication::arguments();
    Settings store;
    store.Write(Keys::FirstTimeAgain, u"1"_s);
    DicePrompts prompts;
    SingleInstance instance;
    frmTarnwick frame(store, prompts);
    frame.State<RecoveryPace>() = tenfold;
    const User user(frame, prompts, arguments.at(1), arguments.at(2).toUInt());
    return RunProgram(frame, instance, arguments.value(3));
}
