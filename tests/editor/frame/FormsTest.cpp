// The list of loaded forms: each exists once, is found by its type, and is gone once it was unloaded.
#include "editor/frame/Forms.h"

#include "support/TestFrame.h"

#include <gtest/gtest.h>
#include <QPointer>
#include <QSignalSpy>

class frmOne : public QWidget {
    Q_OBJECT

  public:
    explicit frmOne(int number = 0) : number(number) {}
    int number;
};

class frmTwo : public QWidget {
    Q_OBJECT
};

namespace {

TEST(Forms, AFormHasTheNameOfItsClassAndExistsOnce) {
    Forms forms;
    frmOne& one = forms.Show<frmOne>(1);
    forms.Load<frmTwo>();
    EXPECT_EQ(one.objectName(), QStringLiteral("frmOne"));
    EXPECT_TRUE(one.isVisible());
    EXPECT_EQ(&forms.Show<frmOne>(2), &one);
    EXPECT_EQ(one.number, 1);
    EXPECT_EQ(forms.Count(), 2);
    delete &one;
    EXPECT_EQ(forms.Find<frmOne>(), nullptr);
    EXPECT_EQ(forms.Count(), 1);
    delete forms.At(0);
}

TEST(Forms, HoldsAFormUntilItIsUnloadedOrGone) {
    Forms forms;
    frmOne& one = forms.Load<frmOne>();
    const frmTwo* two = &forms.Load<frmTwo>();
    EXPECT_TRUE(forms.Holds(&one));
    EXPECT_TRUE(forms.Holds(two));
    forms.Unload(one);
    EXPECT_FALSE(forms.Holds(&one));
    delete two;
    EXPECT_FALSE(forms.Holds(two));
    EXPECT_FALSE(forms.Holds(nullptr));
}

TEST(Forms, AFormIsFoundByItsTypeAndByItsName) {
    Forms forms;
    EXPECT_EQ(forms.Find<frmOne>(), nullptr);
    frmOne& one = forms.Load<frmOne>();
    frmTwo& two = forms.Load<frmTwo>();
    EXPECT_FALSE(one.isVisible());
    EXPECT_EQ(forms.Find<frmTwo>(), &two);
    EXPECT_EQ(forms.Find<frmOne>(), &one);
    EXPECT_EQ(forms.Find(QStringLiteral("frmTwo")), &two);
    EXPECT_EQ(forms.Find(QStringLiteral("frmThree")), nullptr);
    delete &one;
    delete &two;
}

TEST(Forms, AFormIsFoundByItsCaption) {
    TestFrame frame;
    Forms& forms = frame.LoadedForms();
    TestDocument* first = frame.active;
    first->caption = QStringLiteral("/site/a.htm");
    first->setWindowTitle(QStringLiteral("a"));
    frame.NewDocument();
    frame.active->caption = first->caption;
    frmOne& one = forms.Load<frmOne>();
    one.setWindowTitle(QStringLiteral("One"));
    EXPECT_EQ(forms.FindByCaption(QStringLiteral("/site/a.htm")), first);
    EXPECT_EQ(forms.FindByCaption(QStringLiteral("One")), &one);
    for (const auto& none : {QStringLiteral("/site/A.htm"), QStringLiteral("a"), QString()})
        EXPECT_EQ(forms.FindByCaption(none), nullptr) << none.toStdString();
    delete &one;
}

TEST(Forms, OneThatWasUnloadedIsFoundNoMoreThoughItIsStillThere) {
    Forms forms;
    const QPointer<frmOne> first = &forms.Show<frmOne>(1);
    QSignalSpy unloading(&forms, &Forms::Unloading);
    forms.Unload<frmTwo>();
    EXPECT_EQ(unloading.size(), 0);
    forms.Unload<frmOne>();
    ASSERT_TRUE(first);
    EXPECT_FALSE(first->isVisible());
    EXPECT_EQ(forms.Find<frmOne>(), nullptr);
    EXPECT_EQ(forms.Find(QStringLiteral("frmOne")), nullptr);
    // What its handlers ask for behind that does not touch the next one of its type.
    frmOne& second = forms.Show<frmOne>(2);
    forms.Unload(*first);
    EXPECT_EQ(forms.Find<frmOne>(), &second);
    EXPECT_EQ(unloading.size(), 1);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_FALSE(first);
    EXPECT_EQ(second.number, 2);
    delete &second;
}

} // namespace

#include "FormsTest.moc"
