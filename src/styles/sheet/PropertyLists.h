// The property list and what it brings up beside it: the values of a property, or the font families.
#pragma once

#include <QObject>

class Frame;
class ListView;
class QListWidget;
class QTimer;

/// Works on the lists lstProperty, lstValue and lstFont of a form.
class PropertyLists final : public QObject {
    Q_OBJECT

  public:
    PropertyLists(Frame& frame, ListView& lstProperty, ListView& lstValue, QListWidget& lstFont);

    /// Puts the keys into the list that shows.
    void FocusValues();

  Q_SIGNALS:
    /// A value of the selected property was chosen.
    void Picked(const QString& property, const QString& value);

  private:
    /// What the selected row of the catalogue offers, in place of what stood there.
    void SelectProperty();
    void ShowNoValues();
    void Pick(const QString& value);
    void lstProperty_LetterUp();
    void lstValue_DblClick();
    void lstValue_RightDown();
    /// One click is enough; Enter does it as well.
    void lstFont_Click();

    Frame& frame_;
    ListView& lstProperty_;
    ListView& lstValue_;
    QListWidget& lstFont_;
    /// Runs while a word is being typed that the property list is searched for.
    QTimer* search_;
};
