// The rules that all dialogs share: keys, mnemonics, the active document, none open.
#include "builders/commands/AnyDialog.h"

#include "builders/DialogTest.h"
#include "dialogs/DialogState.h"
#include "dialogs/FieldFrame.h"
#include <QAccessible>
#include <QCheckBox>
#include <QPushButton>
#include <QRadioButton>
#include <set>

namespace {

QString Name(const char16_t* text) {
    return QString::fromUtf16(text);
}

/// All tests run once for each form.
class AnyDialogTest : public DialogTest, public testing::WithParamInterface<DialogCase> {
  protected:
    QString FormName() const { return Name(GetParam().form); }
    QWidget& Show(const char16_t* entry = nullptr) {
        if (!GetParam().show)
            return Open(Name(entry ? entry : GetParam().entries.front()), FormName());
        GetParam().show(frame);
        form = frame.LoadedForms().Find(FormName());
        return *form;
    }
    /// The controls of the form that a person reaches, without the inner parts of combo boxes and lists.
    QList<QWidget*> Controls() {
        QList<QWidget*> controls;
        for (QWidget* one : form->findChildren<QWidget*>()) {
            const bool inner =
                one->objectName().startsWith(QStringLiteral("qt_")) || one->objectName().isEmpty();
            if (!inner && one->isVisibleTo(form) && one->isEnabled() && (one->focusPolicy() & Qt::TabFocus))
                controls << one;
        }
        return controls;
    }
    /// Fills the field of the row and presses its button.
    void FillIn() {
        Fill(Name(GetParam().field), QStringLiteral("MiXed"));
        if (*GetParam().press)
            Press(Name(GetParam().press));
    }
    void PressOk() { Press(Name(GetParam().ok.name)); }
    /// The title or label text, with its mnemonic, that names a field; empty where none does.
    QString NameOf(const QWidget& field) {
        for (const QLabel* label : form->findChildren<QLabel*>()) {
            if (label->buddy() == &field)
                return label->text();
        }
        for (const FieldFrame* one : form->findChildren<FieldFrame*>()) {
            if (one->Field() == &field)
                return one->title();
        }
        return QString();
    }
    /// What a field holds at first.
    QString PresetOf(const QString& field) const {
        for (const DialogPreset& preset : GetParam().presets) {
            if (Name(preset.field) == field)
                return Name(preset.value);
        }
        return field == QStringLiteral("chkForwardSlash") ? QStringLiteral("True") : QString();
    }
    /// What the fields and boxes hold.
    QStringList State() {
        QStringList state;
        for (QLineEdit* field : form->findChildren<QLineEdit*>())
            state << field->text();
        for (QAbstractButton* button : form->findChildren<QAbstractButton*>())
            state << QString::number(button->isChecked()) + QString::number(button->isEnabled());
        for (QListWidget* list : form->findChildren<QListWidget*>())
            state << QString::number(list->count()) << QString::number(list->currentRow());
        return state;
    }
};

TEST_P(AnyDialogTest, ExistsOnceUnderAllOfItsEntries) {
    QWidget& first = Show();
    for (const char16_t* entry : GetParam().entries)
        EXPECT_EQ(&Show(entry), &first);
    EXPECT_EQ(first.objectName(), FormName());
    EXPECT_EQ(first.parentWidget(), frame.Window());
    EXPECT_FALSE(first.isModal());
    int loaded = 0;
    for (int i = 0; i < frame.LoadedForms().Count(); ++i)
        loaded += frame.LoadedForms().At(i)->objectName() == FormName() ? 1 : 0;
    EXPECT_EQ(loaded, 1);
}

TEST_P(AnyDialogTest, EscAndTheCloseButtonUnloadIt) {
    frame.SetText(QStringLiteral("abc"));
    Show();
    QTest::keyClick(Controls().first(), Qt::Key_Escape);
    EXPECT_FALSE(Loaded(FormName()));
    Show();
    form->close();
    EXPECT_FALSE(Loaded(FormName()));
    EXPECT_EQ(Text(), QStringLiteral("abc"));
    EXPECT_FALSE(frame.active->modified);
}

TEST_P(AnyDialogTest, ItsButtonsAreNamedAndCancelDoesNothingButClose) {
    frame.SetText(QStringLiteral("abc"));
    Show();
    EXPECT_EQ(Control<QAbstractButton>(Name(GetParam().ok.name)).text(), Name(GetParam().ok.caption));
    if (!*GetParam().cancel.name)
        return;
    EXPECT_EQ(Control<QAbstractButton>(Name(GetParam().cancel.name)).text(), Name(GetParam().cancel.caption));
    FillIn();
    Press(Name(GetParam().cancel.name));
    EXPECT_FALSE(Loaded(FormName()));
    EXPECT_EQ(Text(), QStringLiteral("abc"));
    EXPECT_FALSE(frame.active->modified);
    EXPECT_FALSE(frame.State<DialogState>().TagBuilt);
}

TEST_P(AnyDialogTest, IsEmptyAtFirstButForTheForwardSlashesAndItsPresets) {
    Show();
    for (const QLineEdit* field : form->findChildren<QLineEdit*>()) {
        const auto* combo = qobject_cast<const QComboBox*>(field->parentWidget());
        const QString name = combo ? combo->objectName() : field->objectName();
        EXPECT_EQ(field->text(), PresetOf(name)) << name.toStdString();
    }
    for (const QAbstractButton* button : form->findChildren<QAbstractButton*>())
        EXPECT_EQ(button->isChecked(), PresetOf(button->objectName()) == QStringLiteral("True"))
            << button->objectName().toStdString();
}

TEST_P(AnyDialogTest, OkActsOnTheDocumentAndTheSelectionOfThatMoment) {
    LowerCaseTags();
    TestDocument* first = frame.active;
    SelectIn(QStringLiteral("first"), 0, 5);
    Show();
    FillIn();
    frame.NewDocument();
    SelectIn(QStringLiteral("one two"), 4, 3);
    PressOk();
    EXPECT_EQ(first->input->Text(), QStringLiteral("first"));
    EXPECT_EQ(first->input->SelText(), QStringLiteral("first"));
    EXPECT_FALSE(first->modified);
    const QString inside = GetParam().replaces ? QString() : QStringLiteral("two");
    EXPECT_EQ(Text(), QStringLiteral("one ") + Name(GetParam().open) + inside + Name(GetParam().close));
    EXPECT_EQ(frame.Box().SelLength(), 0);
    EXPECT_EQ(Loaded(FormName()), GetParam().stays);
    EXPECT_TRUE(frame.prompts.asked.isEmpty());
}

TEST_P(AnyDialogTest, OnlyTheBodyAndTheImageHandTheirTagOnAndOnlyOnceItStands) {
    LowerCaseTags();
    const DialogState& state = frame.State<DialogState>();
    Show();
    FillIn();
    bool early = false;
    QObject::connect(&frame.Box(), &RichTextBox::Change, form, [&] { early = early || state.TagBuilt; });
    PressOk();
    EXPECT_FALSE(early);
    EXPECT_EQ(state.TagBuilt, GetParam().tellsTag);
    EXPECT_EQ(state.LastBuiltTag, GetParam().tellsTag ? Name(GetParam().open) : QString());
    EXPECT_EQ(state.LastDir, QString());
}

TEST_P(AnyDialogTest, TypingInTheDocumentGoesOnWhileItIsUp) {
    Show();
    FillIn();
    frame.SetText(QStringLiteral("typed"));
    EXPECT_TRUE(Loaded(FormName()));
    EXPECT_TRUE(form->isVisible());
    EXPECT_TRUE(frame.Window()->isEnabled());
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_P(AnyDialogTest, EscWorksInEveryControl) {
    Show();
    const qsizetype count = Controls().size();
    for (qsizetype i = 0; i < count; ++i) {
        Show();
        QWidget* control = Controls()[i];
        const QString name = control->objectName();
        control->setFocus();
        QTest::keyClick(control, Qt::Key_Escape);
        EXPECT_FALSE(Loaded(FormName())) << name.toStdString();
    }
}

TEST_P(AnyDialogTest, EnterPressesTheDefaultButtonFromEveryField) {
    const bool collects = FormName() == QStringLiteral("frmBulletList");
    const bool stays = GetParam().stays || collects;
    Show();
    const qsizetype count = Controls().size();
    int fields = 0;
    for (qsizetype i = 0; i < count; ++i) {
        Show();
        // A button that comes up with the focus is the default one until it really loses it.
        if (qobject_cast<QPushButton*>(form->focusWidget())) {
            ASSERT_TRUE(QTest::qWaitFor([this] { return form->isActiveWindow(); }));
        }
        QWidget* control = Controls()[i];
        if (!qobject_cast<QLineEdit*>(control) && !qobject_cast<QComboBox*>(control) &&
            !qobject_cast<QCheckBox*>(control) && !qobject_cast<QRadioButton*>(control))
            continue;
        const QString name = control->objectName();
        // Enter in this one adds an item.
        if (name == QStringLiteral("txtList"))
            continue;
        frame.SetText(QString());
        if (FormName() == QStringLiteral("frmEmbed"))
            Fill(QStringLiteral("txtURL"), QStringLiteral("x"));
        control->setFocus();
        QTest::keyClick(control, Qt::Key_Return);
        EXPECT_EQ(Loaded(FormName()), stays) << name.toStdString();
        EXPECT_EQ(Text().startsWith(u'<'), !collects) << name.toStdString();
        ++fields;
    }
    EXPECT_GT(fields, 0);
}

TEST_P(AnyDialogTest, OkWithoutADocumentClosesItAndDoesNothingElse) {
    LowerCaseTags();
    frame.CloseDocument();
    Show();
    FillIn();
    const bool stays = GetParam().stays || GetParam().needsDocument;
    EXPECT_EQ(Control<QAbstractButton>(Name(GetParam().ok.name)).isEnabled(), !GetParam().needsDocument);
    PressOk();
    EXPECT_EQ(Loaded(FormName()), stays);
    EXPECT_EQ(frame.forms->Count(), stays ? 1 : 0);
    EXPECT_EQ(frame.active, nullptr);
    EXPECT_TRUE(frame.prompts.asked.isEmpty());
    EXPECT_EQ(frame.prompts.beeps, 0);
    EXPECT_TRUE(frame.opened.isEmpty() && frame.previewed.isEmpty() && frame.statuses.isEmpty());
    EXPECT_EQ(frame.saves, 0);
    // Whoever waits for the tag is not left waiting.
    EXPECT_EQ(frame.State<DialogState>().TagBuilt, GetParam().tellsTag);
    EXPECT_EQ(frame.State<DialogState>().LastBuiltTag,
              GetParam().tellsTag ? Name(GetParam().open) : QString());
}

TEST_P(AnyDialogTest, KeepsNothingBetweenShowings) {
    Show();
    const QStringList fresh = State();
    for (QLineEdit* field : form->findChildren<QLineEdit*>())
        field->setText(QStringLiteral("x"));
    for (QAbstractButton* button : form->findChildren<QAbstractButton*>()) {
        if (button->isCheckable())
            button->click();
    }
    for (QListWidget* list : form->findChildren<QListWidget*>())
        list->addItem(QStringLiteral("x"));
    EXPECT_NE(State(), fresh);
    QTest::keyClick(Controls().first(), Qt::Key_Escape);
    Show();
    EXPECT_EQ(State(), fresh);
}

TEST_P(AnyDialogTest, TabReachesEveryControlAsTheEyeGoes) {
    Show();
    form->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(form));
    std::vector<QWidget*> order = {form->focusWidget()};
    for (qsizetype i = 0; i < 100 && form->focusWidget(); ++i) {
        QTest::keyClick(form->focusWidget(), Qt::Key_Tab);
        if (form->focusWidget() == order.front())
            break;
        order.push_back(form->focusWidget());
    }
    // Asked for only now: a group of option buttons is one stop, and its arrow keys go on from there.
    const QList<QWidget*> controls = Controls();
    QStringList reached;
    for (const QWidget* one : order)
        reached << one->objectName();
    QStringList all;
    for (const QWidget* one : controls)
        all << one->objectName();
    EXPECT_EQ(std::set<QString>(reached.begin(), reached.end()), std::set<QString>(all.begin(), all.end()))
        << reached.join(u' ').toStdString();
    const auto place = [&](const QWidget* one) { return QRect(one->mapTo(form, QPoint()), one->size()); };
    for (size_t i = 1; i < order.size(); ++i) {
        const QRect before = place(order[i - 1]);
        const QRect after = place(order[i]);
        EXPECT_TRUE(after.top() > before.bottom() || after.left() > before.right())
            << order[i - 1]->objectName().toStdString() << " before " << order[i]->objectName().toStdString();
    }
}

TEST_P(AnyDialogTest, NoControlCoversAnother) {
    Show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(form));
    QList<QWidget*> seen;
    for (QWidget* one : form->findChildren<QWidget*>()) {
        const bool read = qobject_cast<QLabel*>(one) || qobject_cast<QAbstractButton*>(one) ||
                          qobject_cast<QLineEdit*>(one) || qobject_cast<QComboBox*>(one) ||
                          qobject_cast<QListWidget*>(one);
        if (read && one->isVisible() && one->window() == form)
            seen << one;
    }
    const auto place = [this](const QWidget* one) { return QRect(one->mapTo(form, QPoint()), one->size()); };
    for (const QWidget* one : seen) {
        for (const QWidget* other : seen) {
            if (one == other || one->isAncestorOf(other) || other->isAncestorOf(one))
                continue;
            EXPECT_FALSE(place(one).intersects(place(other)))
                << one->objectName().toStdString() << " and " << other->objectName().toStdString();
        }
    }
}

TEST_P(AnyDialogTest, EveryControlHasAnAccessibleName) {
    Show();
    for (QWidget* control : form->findChildren<QWidget*>()) {
        if (control->focusPolicy() == Qt::NoFocus)
            continue;
        // The lists that drop down from combo boxes are made by those.
        if (control->window() != form)
            continue;
        QAccessibleInterface* face = QAccessible::queryAccessibleInterface(control);
        ASSERT_TRUE(face != nullptr);
        EXPECT_FALSE(face->text(QAccessible::Name).isEmpty())
            << control->metaObject()->className() << ' ' << control->objectName().toStdString();
    }
}

TEST_P(AnyDialogTest, AButtonWithoutACaptionHasAPictureAndATip) {
    Show();
    for (const QAbstractButton* button : form->findChildren<QAbstractButton*>()) {
        if (!button->isVisibleTo(form) || !button->text().isEmpty())
            continue;
        EXPECT_FALSE(button->icon().isNull()) << button->objectName().toStdString();
        EXPECT_FALSE(button->toolTip().isEmpty()) << button->objectName().toStdString();
    }
}

TEST_P(AnyDialogTest, TheMnemonicOfItsNameLeadsToEachField) {
    Show();
    form->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(form));
    // Where option buttons stand beside a field, one that is on must not take its place.
    for (QRadioButton* option : form->findChildren<QRadioButton*>()) {
        if (option->parentWidget() != form) {
            option->setFocus();
            option->click();
        }
    }
    int fields = 0;
    for (QWidget* control : Controls()) {
        if (!qobject_cast<QLineEdit*>(control) && !qobject_cast<QComboBox*>(control) &&
            !qobject_cast<QListWidget*>(control))
            continue;
        ++fields;
        const QString name = NameOf(*control);
        const qsizetype at = name.indexOf(u'&');
        ASSERT_GE(at, 0) << control->objectName().toStdString() << " is named '" << name.toStdString() << "'";
        Control<QWidget>(Name(GetParam().ok.name)).setFocus();
        QTest::keyClick(form, static_cast<Qt::Key>(name[at + 1].toUpper().unicode()), Qt::AltModifier);
        EXPECT_EQ(form->focusWidget(), control) << control->objectName().toStdString();
    }
    EXPECT_GT(fields, 0);
}

TEST_P(AnyDialogTest, MnemonicsAreUnique) {
    Show();
    std::set<QChar> seen;
    QStringList texts;
    for (QLabel* label : form->findChildren<QLabel*>()) {
        if (label->buddy() && label->isVisibleTo(form))
            texts << label->text();
    }
    for (QAbstractButton* button : form->findChildren<QAbstractButton*>()) {
        if (button->isVisibleTo(form))
            texts << button->text();
    }
    for (QGroupBox* box : form->findChildren<QGroupBox*>()) {
        if (box->isVisibleTo(form))
            texts << box->title();
    }
    for (const QString& text : texts) {
        const qsizetype at = text.indexOf(u'&');
        if (at < 0 || Name(GetParam().sharedKeys).contains(text[at + 1].toLower()))
            continue;
        EXPECT_TRUE(seen.insert(text[at + 1].toLower()).second) << text.toStdString();
    }
}

TEST_P(AnyDialogTest, ComboBoxesHoldJustWhatIsTyped) {
    Show();
    // Only a box that has the focus completes what is typed.
    form->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(form));
    for (QComboBox* combo : form->findChildren<QComboBox*>()) {
        if (!combo->isVisibleTo(form))
            continue;
        EXPECT_TRUE(combo->isEditable());
        EXPECT_EQ(combo->currentText(), PresetOf(combo->objectName()));
        const int entries = combo->count();
        for (const QString& text : {QStringLiteral("T"), QStringLiteral("left"), QStringLiteral("9")}) {
            combo->clearEditText();
            // A box that sets itself right at every change is its own dialog's to test.
            if (!combo->currentText().isEmpty())
                break;
            combo->setFocus();
            ASSERT_TRUE(combo->hasFocus());
            QTest::keyClicks(combo, text);
            EXPECT_EQ(combo->currentText(), text);
        }
        EXPECT_EQ(combo->count(), entries);
    }
}

INSTANTIATE_TEST_SUITE_P(Dialogs, AnyDialogTest, testing::ValuesIn(AnyDialog::All()), [](const auto& info) {
    return (Name(info.param.form) + Name(info.param.page)).toStdString();
});

using BuilderFormsTest = DialogTest;

// A dialog that the table brings has its case, and it is the entries of the table that show it.
TEST_F(BuilderFormsTest, TheCommandsAreTheEntriesThatShowADialog) {
    QStringList entries;
    for (const DialogCase& dialog : AnyDialog::All()) {
        for (const char16_t* entry : dialog.entries)
            entries << Name(entry);
    }
    QStringList names = frame.Commands().Names();
    names.sort();
    entries.sort();
    EXPECT_EQ(names, entries);
}

} // namespace
