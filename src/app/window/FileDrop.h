// Files dropped on the frame.
#pragma once

#include <QObject>
#include <QStringList>

class QMimeData;
class QWidget;

/// Takes the drops of files on the widgets it watches, ahead of what these do with dropped text.
class FileDrop final : public QObject {
    Q_OBJECT

  public:
    using QObject::QObject;

    void Watch(QWidget& widget);
    /// While off, drops are left to the widgets. Off at first.
    void SetActive(bool active) { active_ = active; }

  Q_SIGNALS:
    /// The full paths in the order of the drop. Comes after the drop is released: whoever dropped waits no
    /// longer.
    void Dropped(const QStringList& paths);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    static QStringList Paths(const QMimeData& data);

    bool active_ = false;
};
