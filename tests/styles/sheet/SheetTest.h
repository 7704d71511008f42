// The style sheet builder, open, and a person at its lists.
#pragma once

#include "styles/sheet/ListView.h"
#include "styles/sheet/SheetBox.h"
#include "styles/StyleTest.h"

#include <QAction>

class SheetTest : public StyleTest {
  protected:
    void SetUp() override {
        StyleTest::SetUp();
        OpenSheet();
    }
    void OpenSheet() { Open(T(u"tb_CSS"), T(u"frmCSS")); }

    ListView& List(const char16_t* name) { return Control<ListView>(T(name)); }
    ListView& Elements() { return List(u"lstObject"); }
    ListView& Properties() { return List(u"lstProperty"); }
    ListView& Values() { return List(u"lstValue"); }
    QListWidget& Fonts() { return Control<QListWidget>(T(u"lstFont")); }
    QListWidget& Builder() { return Control<QListWidget>(T(u"ListCSS")); }
    SheetBox& Sheet() { return Control<SheetBox>(T(u"txtCSS")); }

    static QStringList Rows(const ListView& list) {
        QStringList rows;
        for (int row = 0; row < list.topLevelItemCount(); ++row)
            rows << list.topLevelItem(row)->text(0);
        return rows;
    }
    static QStringList Rows(const QListWidget& list) {
        QStringList rows;
        for (int row = 0; row < list.count(); ++row)
            rows << list.item(row)->text();
        return rows;
    }
    /// The place of a list's row, which is scrolled into view first.
    static QPoint Place(ListView& list, int row) {
        list.scrollToItem(list.topLevelItem(row));
        return list.visualItemRect(list.topLevelItem(row)).center();
    }
    static void Click(ListView& list, int row, Qt::MouseButton button = Qt::LeftButton) {
        QTest::mouseClick(list.viewport(), button, {}, Place(list, row));
    }
    static void DoubleClick(ListView& list, int row) {
        const QPoint at = Place(list, row);
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, at);
        QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, at);
    }
    static void DoubleClick(QListWidget& list, int row) {
        list.scrollToItem(list.item(row));
        const QPoint at = list.visualItemRect(list.item(row)).center();
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, at);
        QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, at);
    }
    /// The first row of a text, or -1.
    static int Find(const ListView& list, const char16_t* text) {
        return static_cast<int>(Rows(list).indexOf(T(text)));
    }
    void ChooseElement(const char16_t* element) { Click(Elements(), Find(Elements(), element)); }
    /// Clicks a property; the box that it may bring up gets that answer.
    void ChooseProperty(const char16_t* property, const char16_t* answer = nullptr) {
        if (answer)
            frame.prompts.inputAnswers.push_back(T(answer));
        Click(Properties(), Find(Properties(), property));
    }
    /// Adds a declaration: the property clicked, the value double-clicked.
    void Add(const char16_t* property, const char16_t* value, const char16_t* answer = nullptr) {
        ChooseProperty(property, answer);
        DoubleClick(Values(), Find(Values(), value));
    }
    void Tool(const char16_t* name) { Control<QAction>(T(name)).trigger(); }
    template <typename C> C& Control(const QString& name) {
        C* control = form->findChild<C*>(name);
        if (!control)
            qFatal("no control %s", qPrintable(name));
        return *control;
    }
    /// Puts a text into the box of the sheet.
    void Put(const QString& sheet) { Sheet().setPlainText(sheet); }
};
