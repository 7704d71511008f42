// The file dialog of links, frames and the site tools: filters, multiple selection, loading and saving a
// control.
#pragma once

#include "platform/desktop/FileRequest.h"

#include <QString>
#include <QStringList>

class Frame;
class QWidget;

/// Where a file is loaded into or saved from: a control, a string, or nothing. Files are of code page 1252;
/// those of a control that holds all of Unicode are written in UTF-8 and read as what they are.
class DialogTarget {
  public:
    DialogTarget() = default;
    DialogTarget(QWidget* control) : control_(control) {}
    DialogTarget(QString* text) : text_(text) {}

    /// The filters that suit the kind of target: a rich text, a picture, a list, a text, a string. Empty for
    /// others.
    QString DefaultFilters() const;
    /// Loads a file into the target; false, and nothing changed, if it can't be read or the target takes
    /// none.
    bool Load(const QString& path) const;
    /// Writes the target into a file, whole or not at all.
    bool Save(const QString& path) const;
    explicit operator bool() const { return control_ || text_; }

  private:
    QWidget* control_ = nullptr;
    QString* text_ = nullptr;
};

/// Each form that uses it makes one of its own. Nothing is selected before a dialog was shown, nor after a
/// Cancel.
class CDialog {
  public:
    enum Multi { Off = 0, Multiple = 1, Explorer = 2 };
    /// The error code of a selection too long for the dialog's buffer.
    static constexpr int BufferTooSmall = 0x3003;
    /// The buffer's size in characters: folder, names, and the separators between and behind them.
    static constexpr int BufferSize = 25000;

    explicit CDialog(Frame& frame) : frame_(frame) {}

    /// 1 shows the open dialog, 2 the save dialog; any other number does nothing and gives false.
    bool Action(int action, QWidget* owner = nullptr);
    /// Off, or multiple selection in either look; other numbers count as Off.
    void SetMultiSelect(int multi);
    int MultiSelect() const { return multiSelect_; }
    /// "Name|pattern;pattern|" and so on. Assigning selects filter 1.
    void SetFilter(const QString& filter);
    QString Filter() const { return request_.filter; }
    /// 1-based.
    void SetFilterIndex(int index) { request_.filterIndex = index; }
    int FilterIndex() const { return request_.filterIndex; }
    void AddFilter(const QString& name, const QString& patterns);
    /// Adds the filters that suit the kind of target.
    void AddDefaultFilters(const DialogTarget& target);
    /// Kept as set: the desktop's dialogs have no read-only box.
    void SetFileReadOnly(bool on) { fileReadOnly_ = on; }
    bool FileReadOnly() const { return fileReadOnly_; }
    void SetFileMustExist(bool on) { request_.mustExist = on; }
    bool FileMustExist() const { return request_.mustExist; }
    /// The dialog comes again for a file that can't be written.
    void SetFileMustBeWritable(bool on) { fileMustBeWritable_ = on; }
    bool FileMustBeWritable() const { return fileMustBeWritable_; }
    /// The same switch under its other spelling.
    void SetFileMustBeWriteable(bool on) { SetFileMustBeWritable(on); }
    bool FileMustBeWriteable() const { return FileMustBeWritable(); }

    int SelectedFileCount() const { return static_cast<int>(selected_.size()); }
    /// The full path of a selected file, counted from 1; empty outside 1 to the count.
    QString SelectedFile(int n) const;
    /// 0 after OK and after Cancel.
    int ErrorCode() const { return errorCode_; }

    /// True on OK. Without an owner it is the active window. With a target the default filters stand in for
    /// an empty Filter, and the file is loaded into it.
    bool ShowOpen(QWidget* owner = nullptr, const DialogTarget& target = {});
    /// True on OK. With a target the file is written from it.
    bool ShowSave(QWidget* owner = nullptr, const DialogTarget& target = {});
    /// Writes a target into the first selected file.
    bool SaveFrom(const DialogTarget& target) const;
    /// Loads the first selected file into a target.
    bool LoadInto(const DialogTarget& target) const;

  private:
    bool Show(bool open, QWidget* owner, const DialogTarget& target);
    bool Take(const FileAnswer& answer);

    Frame& frame_;
    FileRequest request_; ///< what stays from one showing to the next
    int multiSelect_ = Off;
    bool fileReadOnly_ = false;
    bool fileMustBeWritable_ = false;
    int errorCode_ = 0;
    QStringList selected_;
};
