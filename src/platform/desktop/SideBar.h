// The folders at the side of a file dialog.
#pragma once

#include <chrono>
#include <QByteArray>
#include <QFileDialog>
#include <QList>
#include <QMetaObject>
#include <QStringList>
#include <QUrl>

/// What the side bar shows: what it showed before, then the folders that it did not, each once.
QList<QUrl> SideBarUrls(const QList<QUrl>& before, const QStringList& folders);

/// Those of some paths that are folders, in their order. A share that does not answer is not waited for, and
/// keeps back no other: what is not known when patience ends counts as not there.
QStringList ExistingFolders(const QStringList& paths, std::chrono::milliseconds patience);

/// A file dialog with further folders at its side, for as long as this lives. The toolkit keeps the side bar
/// for all programs, so what the user had there comes back, without what he took out and with what he put in.
class LentSideBar {
  public:
    LentSideBar(QFileDialog& dialog, const QStringList& folders);
    ~LentSideBar();
    LentSideBar(const LentSideBar&) = delete;
    LentSideBar& operator=(const LentSideBar&) = delete;

  private:
    QFileDialog& dialog_;
    QList<QUrl> lent_;
};

/// A file dialog whose list and side bar show names, sizes and dates whole, for as long as this lives. The
/// toolkit keeps their widths for all programs: unless the user changed them they come back as they were.
class WideColumns {
  public:
    /// So many pixels are to be left beside the dialog's own.
    explicit WideColumns(QFileDialog& dialog, int beside = 0);
    ~WideColumns();
    WideColumns(const WideColumns&) = delete;
    WideColumns& operator=(const WideColumns&) = delete;

  private:
    void Widen();

    QFileDialog& dialog_;
    QByteArray columns_;
    QByteArray wideColumns_;
    int sideBar_ = 0;
    QMetaObject::Connection sideBarMoved_;
};
