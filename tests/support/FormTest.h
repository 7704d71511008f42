// Opens a form by its command and uses it as a person does: fields by name, buttons by mouse, keys.
#pragma once

#include "support/TestFrame.h"

#include <gtest/gtest.h>
#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QTest>

/// The fixture of a folder fills the frame's commands with those that show its forms.
class FormTest : public testing::Test {
  protected:
    /// Runs a command and makes the form that it shows the one that the other calls work on.
    QWidget& Open(const QString& command, const QString& name) {
        frame.Commands().Run(command);
        form = frame.LoadedForms().Find(name);
        EXPECT_TRUE(form && form->isVisible()) << name.toStdString();
        return *form;
    }
    bool Loaded(const QString& name) { return frame.LoadedForms().Find(name) != nullptr; }

    template <typename T> T& Control(const QString& name) {
        T* control = form->findChild<T*>(name);
        if (!control)
            qFatal("no control %s", qPrintable(name));
        return *control;
    }
    QString Field(const QString& name) {
        QWidget& control = Control<QWidget>(name);
        if (auto* combo = qobject_cast<QComboBox*>(&control))
            return combo->currentText();
        return Control<QLineEdit>(name).text();
    }
    void Fill(const QString& name, const QString& text) {
        QWidget& control = Control<QWidget>(name);
        if (auto* combo = qobject_cast<QComboBox*>(&control))
            combo->setEditText(text);
        else
            Control<QLineEdit>(name).setText(text);
    }
    /// Clicks a button near its left edge: where the box of a check box is.
    void Press(const QString& name) {
        auto& button = Control<QAbstractButton>(name);
        QTest::mouseClick(&button, Qt::LeftButton, {}, QPoint(10, button.height() / 2));
    }

    /// The text of the label whose buddy a field is, as it is read.
    QString LabelOf(const QString& field) {
        for (const QLabel* label : form->findChildren<QLabel*>()) {
            if (label->buddy() && label->buddy()->objectName() == field)
                return label->text().remove(u'&');
        }
        return QString();
    }
    QString Tip(const QString& name) { return Control<QWidget>(name).toolTip(); }
    QStringList Items(const QString& combo) {
        QStringList items;
        for (int i = 0; i < Control<QComboBox>(combo).count(); ++i)
            items << Control<QComboBox>(combo).itemText(i);
        return items;
    }
    /// The two boxes of a dialog that picks a file into a field, as they come up.
    void ExpectPathBoxes() {
        const auto& chkForwardSlash = Control<QCheckBox>(QStringLiteral("chkForwardSlash"));
        EXPECT_EQ(chkForwardSlash.text(), QStringLiteral("Forward Slashes"));
        EXPECT_TRUE(chkForwardSlash.isChecked());
        const auto& chkAbsolute = Control<QCheckBox>(QStringLiteral("chkAbsolute"));
        EXPECT_EQ(chkAbsolute.text(), QStringLiteral("Display Absolute Path"));
        EXPECT_FALSE(chkAbsolute.isChecked());
    }
    QString Text() { return frame.Box().Text(); }
    /// The document holds a text of which a part is selected.
    void SelectIn(const QString& text, int start, int length) {
        frame.SetText(text);
        frame.Box().SetSelStart(start);
        frame.Box().SetSelLength(length);
    }
    void LowerCaseTags() { frame.Store().WriteFlag(Keys::LowerCaseTags, true); }

    TestFrame frame;
    QWidget* form = nullptr;
};
