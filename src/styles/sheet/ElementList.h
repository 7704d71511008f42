// The elements that a style can be built for, and the buttons that change them.
#pragma once

#include <QObject>

class Frame;
class ListView;

/// Works on the list lstObject of a form. One row is always selected, unless all are removed.
class ElementList final : public QObject {
    Q_OBJECT

  public:
    ElementList(Frame& frame, ListView& lstObject);

    /// Asks for an element and puts it at the list's end.
    void Add();
    /// Asks for another text of the selected row.
    void Rename();
    /// Takes the selected row away, unasked.
    void Remove();

  Q_SIGNALS:
    /// Another element is selected, or the selected one has another text.
    void Changed();

  private:
    QString Ask();

    Frame& frame_;
    ListView& lstObject_;
};
