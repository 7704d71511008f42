#include "builders/DialogCommands.h"

#include "builders/DialogTest.h"
#include "builders/frmBulletList.h"
#include <QAccessible>
#include <QCheckBox>
#include <QRadioButton>
#include <set>

namespace {

/// A form, the entries that show it ("" for ShowBulletList) and the button of its OK.
struct FormRow {
    const char16_t* form;
    std::vector<const char16_t*> entries;
    const char16_t* ok = u"cmdOK";
};

const FormRow rows[] = {
    {u"frmBody", {u"tb_body"}},
    {u"frmGraphicLink", {u"mnuImage", u"tb_image"}},
    {u"frmLinks", {u"mnuLink", u"tb_link"}},
    {u"frmHRInput", {u"mnuHR", u"tb_hr"}},
    {u"frmFont", {u"tb_abc"}},
    {u"frmJava", {u"tb_java"}},
    {u"frmParam", {u"tb_java2"}},
    {u"frmEmbed", {u"mnuEmbed", u"tb_embed"}},
    {u"frmSpacer", {u"tb_rectangle"}},
    {u"frmMulti", {u"tb_split"}, u"Command1"},
    {u"frmBulletList", {u""}, u"cmdDone"},
};

QString Name(const char16_t* text) {
    return QString::fromUtf16(text);
}

/// All tests run once for each form.
class AnyDialogTest : public DialogTest, public testing::WithParamInterface<FormRow> {
  protected:
    QString FormName() const { return Name(GetParam().form); }
    QWidget& Show(const char16_t* entry = nullptr) {
        const char16_t* command = entry ? entry : GetParam().entries.front();
        if (*command)
            return Open(Name(command), FormName());
        ShowBulletList(frame, QStringLiteral("U"));
        form = frame.LoadedForms().Find(FormName());
        return *form;
    }
    /// The controls of the form that a person reaches, without the inner parts of combo boxes and lists.
    QList<QWidget*> Controls() {
        QList<QWidget*> controls;
        for (QWidget* one : form->findChildren<QWidget*>()) {
            const bool inner =
                one->objectName().startsWith(QStringLiteral("qt_")) || one->objectName().isEmpty();
            if (!inner && one->isEnabled() && (one->focusPolicy() & Qt::TabFocus))
                controls << one;
        }
        return controls;
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
    const bool stays = FormName() == QStringLiteral("frmParam") || collects;
    Show();
    const qsizetype count = Controls().size();
    int fields = 0;
    for (qsizetype i = 0; i < count; ++i) {
        Show();
        QWidget* control = Controls()[i];
        if (!qobject_cast<QLineEdit*>(control) && !qobject_cast<QComboBox*>(control) &&
            !qobject_cast<QCheckBox*>(control) && !qobject_cast<QRadioButton*>(control))
            continue;
        const QString name = control->objectName();
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
    frame.CloseDocument();
    Show();
    if (FormName() == QStringLiteral("frmEmbed"))
        Fill(QStringLiteral("txtURL"), QStringLiteral("x"));
    Press(Name(GetParam().ok));
    EXPECT_EQ(Loaded(FormName()), FormName() == QStringLiteral("frmParam"));
    EXPECT_TRUE(frame.prompts.asked.isEmpty());
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

TEST_P(AnyDialogTest, MnemonicsAreUnique) {
    Show();
    std::set<QChar> seen;
    QStringList texts;
    for (QLabel* label : form->findChildren<QLabel*>()) {
        if (label->buddy())
            texts << label->text();
    }
    for (QAbstractButton* button : form->findChildren<QAbstractButton*>())
        texts << button->text();
    for (const QString& text : texts) {
        const qsizetype at = text.indexOf(u'&');
        if (at < 0)
            continue;
        EXPECT_TRUE(seen.insert(text[at + 1].toLower()).second) << text.toStdString();
    }
}

TEST_P(AnyDialogTest, ComboBoxesHoldJustWhatIsTyped) {
    Show();
    for (QComboBox* combo : form->findChildren<QComboBox*>()) {
        EXPECT_TRUE(combo->isEditable());
        EXPECT_EQ(combo->currentText(), QString());
        const int entries = combo->count();
        for (const QString& text : {QStringLiteral("T"), QStringLiteral("left"), QStringLiteral("9")}) {
            combo->clearEditText();
            QTest::keyClicks(combo->lineEdit(), text);
            EXPECT_EQ(combo->currentText(), text);
        }
        EXPECT_EQ(combo->count(), entries);
    }
}

INSTANTIATE_TEST_SUITE_P(Dialogs, AnyDialogTest, testing::ValuesIn(rows),
                         [](const auto& info) { return Name(info.param.form).toStdString(); });

using DialogCommandsTest = DialogTest;

TEST_F(DialogCommandsTest, AreTheEntriesThatShowADialog) {
    QStringList entries;
    for (const FormRow& row : rows) {
        for (const char16_t* entry : row.entries) {
            if (*entry)
                entries << Name(entry);
        }
    }
    QStringList names = frame.Commands().Names();
    names.sort();
    entries.sort();
    EXPECT_EQ(names, entries);
}

} // namespace
