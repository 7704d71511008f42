// Files of open documents that others changed, told in panel 3 when the program comes to the front.
#pragma once

#include "platform/store/Background.h"

#include <QList>
#include <QObject>
#include <QPointer>

class Frame;
class frmTemplate;
class OpenDocuments;
class StatusBar;

/// Looks when the frame or the application becomes active, beside the event loop, as a disk may take its
/// time. Each change is told of once. Does nothing with TellChangedFiles off.
class ChangedFiles final : public QObject {
    Q_OBJECT

  public:
    ChangedFiles(Frame& frame, const OpenDocuments& documents, StatusBar& bar);

    void Look();
    bool IsLooking() const { return work_.Busy(); }

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    struct File;
    QList<File> FilesToLookAt() const;
    void Tell(const QList<File>& files);

    Frame& frame_;
    const OpenDocuments& documents_;
    StatusBar& bar_;
    Background work_;
    bool again_ = false; ///< the program came to the front once more meanwhile
};
