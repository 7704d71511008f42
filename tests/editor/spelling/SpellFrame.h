// A test frame with a spelling control, and a person who answers its dialog.
#pragma once

#include "editor/spelling/frmSpell.h"
#include "editor/spelling/SpellChecker.h"
#include "editor/spelling/SpellCommands.h"
#include "editor/spelling/SpellRun.h"
#include "support/Files.h"
#include "support/FreshUser.h"
#include "support/TestFrame.h"

#include <gtest/gtest.h>
#include <QAbstractButton>
#include <QLineEdit>
#include <QListWidget>
#include <QTest>

/// What the person does about a word.
struct Reply {
    const char* button;
    const char* correction = nullptr; ///< typed ahead of the button; null leaves what stands there
};

class SpellFrame : public TestFrame {
  public:
    SpellFrame() : checker(new SpellChecker(window.get())) {
        // A few words will do, and take no time to load.
        const QString words = TestFolder() + QStringLiteral("/words");
        WriteFile(words, "the\nquick\nbrown\nfox\nthere\ncaf\xc3\xa9\na\nb\nx\none\ntwo\nthree\nhome\n");
        checker->StandardDic = words;
        checker->CustomDic = TestFolder() + QStringLiteral("/custom.vtc");
        FillSpellCommands(*this, *checker);
        QObject::connect(checker, &SpellChecker::WordFound, window.get(), [this] {
            if (active)
                found << QStringLiteral("%1:%2").arg(Box().SelStart()).arg(Box().SelText());
        });
    }

    SpellRun& Run() { return *checker->findChild<SpellRun*>(); }
    frmSpell* Dialog() { return window->findChild<frmSpell*>(); }
    bool Asking() { return Dialog() && Dialog()->Asking(); }
    template <typename Control> Control& In(const char* name) {
        return *Dialog()->findChild<Control*>(QString::fromLatin1(name));
    }

    void Start() { commands.Run(QStringLiteral("mnuSpellCheck")); }
    void WaitForQuestion() {
        ASSERT_TRUE(QTest::qWaitFor([this] { return Asking(); }, patience));
    }
    void WaitForEnd() {
        ASSERT_TRUE(QTest::qWaitFor([this] { return !Run().Running(); }, patience));
    }
    void Give(const Reply& reply) {
        WaitForQuestion();
        if (!Asking())
            return;
        if (reply.correction)
            In<QLineEdit>("txtChange").setText(QString::fromUtf8(reply.correction));
        In<QAbstractButton>(reply.button).click();
    }
    /// A run from start to end.
    void Check(const std::vector<Reply>& replies = {}) {
        found.clear();
        prompts.asked.clear();
        Start();
        for (const Reply& reply : replies)
            Give(reply);
        WaitForEnd();
    }
    QString Found() const { return found.join(u' '); }
    QString Boxes() { return prompts.Messages().join(u'|'); }

    SpellChecker* checker;
    QStringList found; ///< "SelStart:SelText" at each word found

  private:
    static constexpr int patience = 30'000;
};
