// Each file call of a save goes wrong in each way, for every kind of file: what is found afterwards is the
// old content or the new, whole, and nothing else is left.
#include "platform/store/WholeFile.h"

#include "FileFaults.h"

#include <csignal>
#include <functional>
#include <gtest/gtest.h>
#include <optional>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <sys/stat.h>
#include <sys/wait.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace {

constexpr int nobody = 65534;
constexpr FaultKind everyKind[] = {FaultKind::Fails,      FaultKind::FailsAsMissing, FaultKind::FailsForGood,
                                   FaultKind::ComesShort, FaultKind::Dies,           FaultKind::DiesHalfway};

bool IsRoot() {
    return ::getuid() == 0;
}

/// In memory where there is such a disk: some thousand saves then depend on no other program's.
QString Template() {
    const QString memory = QStringLiteral("/dev/shm");
    return (QFileInfo(memory).isWritable() ? memory : QDir::tempPath()) + QStringLiteral("/saves-XXXXXX");
}

/// A folder with the file that is saved, and a program's folder of its own. Root has another user do the
/// saving: no mode holds root itself back.
struct Place {
    QTemporaryDir folder{Template()}, home{Template()};
    QByteArray path; ///< what is saved
    QByteArray real; ///< where its bytes lie

    Place() : path(At("a.htm")), real(path) {
        for (const QTemporaryDir* each : {&folder, &home})
            Give(QFile::encodeName(each->path()));
    }
    ~Place() { Mode(0755); }
    Place(const Place&) = delete;
    Place& operator=(const Place&) = delete;

    QByteArray At(const char* name) const {
        return QFile::encodeName(folder.filePath(QString::fromUtf8(name)));
    }
    /// To the user who saves.
    static void Give(const QByteArray& name, int user = nobody) {
        if (!IsRoot())
            return;
        EXPECT_EQ(::lchown(name.constData(), uid_t(user), gid_t(user)), 0);
    }
    void Make(const QByteArray& content, mode_t mode = 0644) const {
        QFile file(QFile::decodeName(real));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        ::chmod(real.constData(), mode);
        Give(real);
    }
    void Mode(mode_t mode) const { ::chmod(QFile::encodeName(folder.path()).constData(), mode); }
    void Link(const char* to) {
        path = At("link.htm");
        EXPECT_EQ(::symlink(to, path.constData()), 0);
        Give(path);
    }
    QByteArray Content() const {
        QFile file(QFile::decodeName(real));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(none)");
    }
    /// All that must stay as it is whatever happens: names, owners, modes, links, attributes. A file that was
    /// not there yet may be there now.
    std::string Picture(bool withFile) const {
        QByteArray picture;
        for (const QTemporaryDir* each : {&folder, &home})
            picture += PictureOf(each->path(), withFile);
        return picture.toStdString();
    }

  private:
    QByteArray PictureOf(const QString& in, bool withFile) const {
        QByteArray picture;
        constexpr auto all = QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;
        for (const QString& name : QDir(in).entryList(all)) {
            const QByteArray each = QFile::encodeName(in + u'/' + name);
            if (name == QStringLiteral("saves")) {
                picture += PictureOf(in + u'/' + name, withFile);
                continue;
            }
            if (!withFile && each == real)
                continue;
            struct stat status = {};
            EXPECT_EQ(::lstat(each.constData(), &status), 0);
            char value[16] = {};
            ::lgetxattr(each.constData(), "user.note", value, sizeof value);
            picture += QFile::encodeName(name) + ' ' + QByteArray::number(status.st_mode, 8) + ' ' +
                       QByteArray::number(status.st_uid) + ' ' +
                       QByteArray::number(qulonglong(status.st_nlink)) + ' ' + value + '\n';
        }
        return picture;
    }
};

/// The user who saves, with a program's folder of his own, for as long as this lives.
class Saver {
  public:
    Saver(const Place& place, bool asRoot) : isOther_(IsRoot() && !asRoot), mask_(::umask(022)) {
        qputenv("TARNWICK_HOME", QFile::encodeName(place.home.path()));
        if (isOther_ && (::setresgid(nobody, nobody, 0) != 0 || ::setresuid(nobody, nobody, 0) != 0))
            ADD_FAILURE() << "root may not become another user";
    }
    ~Saver() {
        if (isOther_ && (::setresuid(0, 0, 0) != 0 || ::setresgid(0, 0, 0) != 0))
            ADD_FAILURE() << "there is no way back";
        ::umask(mask_);
    }
    Saver(const Saver&) = delete;
    Saver& operator=(const Saver&) = delete;

  private:
    bool isOther_;
    mode_t mask_;
};

/// Does a step with calls that go wrong. Its answer; nothing where the process was killed: a child's, if need
/// be.
std::optional<bool> Do(Fault fault, const std::function<bool()>& step) {
    const bool dies = fault.kind == FaultKind::Dies || fault.kind == FaultKind::DiesHalfway;
    const pid_t child = dies ? ::fork() : 0;
    if (child > 0) {
        int status = 0;
        EXPECT_EQ(::waitpid(child, &status, 0), child);
        EXPECT_TRUE(WIFEXITED(status) || WTERMSIG(status) == SIGKILL) << WTERMSIG(status);
        return WIFEXITED(status) ? std::optional(WEXITSTATUS(status) == 1) : std::nullopt;
    }
    GoWrong(fault);
    const bool answer = step();
    if (dies)
        ::_exit(answer ? 1 : 0);
    GoWell();
    return answer;
}

const QByteArray oldText = "<P>The old text, which is the longer one of the two.</P>\r\n";
const QByteArray newText = "<P>The new text, shorter.</P>\r\n";
const QByteArray lastText = "<P>What is saved in the end.</P>\r\n";

struct Target {
    const char* name;
    /// Makes the file; false where this machine has no such thing.
    std::function<bool(Place&)> make;
    bool isWritable = true;
    bool asRoot = false; ///< root itself saves; for another user's machine nothing
    QByteArray before = oldText;
    QByteArray after = newText;
};

void PrintTo(const Target& target, std::ostream* out) {
    *out << target.name;
}

bool Plain(Place& place) {
    place.Make(oldText);
    return true;
}

bool HardLink(Place& place) {
    place.Make(oldText, 0640);
    return ::link(place.real.constData(), place.At("b.htm").constData()) == 0;
}

bool HardLinkOf(Place& place, const QByteArray& content) {
    place.Make(content);
    return ::link(place.real.constData(), place.At("b.htm").constData()) == 0;
}

QList<Target> Targets() {
    const QByteArray none = "(none)";
    const QByteArray big(100'000, 'o'), bigger(150'000, 'n');
    return {
        {"plain", Plain},
        {"plain, longer", [](Place& place) { return place.Make(newText), true; }, true, false, newText,
         oldText},
        {"symbolic link", [](Place& place) { return place.Make(oldText), place.Link("a.htm"), true; }},
        {"hard link", HardLink},
        {"hard link, longer", [](Place& place) { return HardLinkOf(place, newText); }, true, false, newText,
         oldText},
        {"read-only", [](Place& place) { return place.Make(oldText, 0444), !IsRoot() || ::getuid() == 0; },
         false},
        {"another owner",
         [](Place& place) {
             place.Make(oldText, 0666);
             Place::Give(place.real, 0);
             return IsRoot();
         }},
        {"another owner, saved by root", [](Place& place) { return place.Make(oldText, 0640), IsRoot(); },
         true, true},
        {"closed folder", [](Place& place) { return place.Make(oldText), place.Mode(0555), true; }},
        {"symbolic link into a closed folder",
         [](Place& place) { return place.Make(oldText), place.Link("a.htm"), place.Mode(0555), true; }},
        {"long name",
         [](Place& place) {
             place.path = place.real = place.At(QByteArray(255, 'n').constData());
             return place.Make(oldText), true;
         }},
        {"extended attribute",
         [](Place& place) {
             place.Make(oldText);
             return ::setxattr(place.real.constData(), "user.note", "kept", 4, 0) == 0;
         }},
        {"empty old file", [](Place& place) { return place.Make(""), true; }, true, false, ""},
        {"empty old file with two names", [](Place& place) { return HardLinkOf(place, ""); }, true, false,
         ""},
        {"new file", [](Place&) { return true; }, true, false, none},
        {"new file of a long name",
         [](Place& place) {
             return place.path = place.real = place.At(QByteArray(255, 'n').constData()), true;
         },
         true, false, none},
        {"dangling symbolic link", [](Place& place) { return place.Link("a.htm"), true; }, true, false, none},
        {"big file", [big](Place& place) { return place.Make(big), true; }, true, false, big, bigger},
        {"big file with two names", [big](Place& place) { return HardLinkOf(place, big); }, true, false, big,
         bigger},
    };
}

/// One save that goes wrong, and what comes behind it: the next start, or the next save.
class Trial {
  public:
    Trial(const Target& target, Fault fault) : target_(target), fault_(fault) {
        isThere_ = target.make(place_);
    }

    bool IsThere() const { return isThere_; }

    /// Returns how many calls it took.
    int Save() {
        picture_ = place_.Picture(false);
        whole_ = place_.Picture(true);
        ForgetCalls();
        answer_ = Write(fault_, target_.after);
        return CallsMade();
    }
    void Settle(Fault fault = {}) {
        const Saver saver(place_, target_.asRoot);
        Do(fault, [] { return WholeFile::SettleInterrupted(), true; });
    }
    void StartAgain() {
        Settle();
        const QByteArray content = place_.Content();
        EXPECT_TRUE(content == target_.before || content == target_.after)
            << content.size() << " bytes: " << content.left(200).constData();
        EXPECT_TRUE(answer_ != true || content == target_.after) << "it was told that it is saved";
        ExpectNothingElse();
    }
    void SaveAgain() {
        EXPECT_EQ(Write({}, lastText), target_.isWritable);
        EXPECT_EQ(place_.Content(), target_.isWritable ? lastText : target_.before);
        ExpectNothingElse();
    }

  private:
    std::optional<bool> Write(Fault fault, const QByteArray& content) {
        const QString path = QFile::decodeName(place_.path);
        const Saver saver(place_, target_.asRoot);
        return Do(fault, [&] { return WholeFile::Write(path, content); });
    }
    void ExpectNothingElse() const {
        if (target_.before == "(none)")
            EXPECT_EQ(place_.Picture(false), picture_);
        else
            EXPECT_EQ(place_.Picture(true), whole_);
    }

    const Target& target_;
    Fault fault_;
    Place place_;
    std::string picture_, whole_;
    bool isThere_;
    std::optional<bool> answer_;
};

class SaveFaults : public testing::TestWithParam<Target> {};

TEST_P(SaveFaults, LeaveTheOldContentOrTheNewAndNothingElse) {
    Trial well(GetParam(), {});
    if (!well.IsThere())
        GTEST_SKIP() << "not to be had here, or not by this user";
    const int calls = well.Save();
    well.StartAgain();
    well.SaveAgain();
    ASSERT_GE(calls, 2);
    for (const FaultKind kind : everyKind) {
        for (int at = 1; at <= calls && !HasFailure(); ++at) {
            const Fault fault{kind, at};
            SCOPED_TRACE(testing::Message() << fault << " of " << calls);
            Trial start(GetParam(), fault);
            start.Save();
            start.StartAgain();
            Trial save(GetParam(), fault);
            save.Save();
            save.SaveAgain();
        }
    }
}

std::string NameOf(const testing::TestParamInfo<Target>& row) {
    std::string name;
    for (const char c : std::string(row.param.name))
        name += std::isalnum(c) ? c : '_';
    return name;
}

INSTANTIATE_TEST_SUITE_P(EveryFile, SaveFaults, testing::ValuesIn(Targets()), NameOf);

class SettlingFaults : public SaveFaults {};

TEST_P(SettlingFaults, AreMadeGoodByTheNextStart) {
    const int calls = Trial(GetParam(), {}).Save();
    for (int at = calls / 2; at <= calls && !HasFailure(); at += 3) {
        for (const FaultKind kind : {FaultKind::Fails, FaultKind::DiesHalfway}) {
            for (int step = 1; step <= 12; ++step) {
                const Fault save{FaultKind::DiesHalfway, at}, settling{kind, step};
                SCOPED_TRACE(testing::Message() << save << ", then " << settling);
                Trial trial(GetParam(), save);
                trial.Save();
                trial.Settle(settling);
                trial.StartAgain();
            }
        }
    }
}

// A file that is replaced, and one that is overwritten.
INSTANTIATE_TEST_SUITE_P(BothWays, SettlingFaults,
                         testing::Values(Target{"plain", Plain}, Target{"hard link", HardLink}), NameOf);

} // namespace
