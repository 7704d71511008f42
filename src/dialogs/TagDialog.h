// What all tag dialogs have in common: owner, OK, Cancel, and an end that leaves nothing behind.
#pragma once

#include <QDialog>

class Frame;
class QPushButton;

/// A dialog is shown by frame.LoadedForms().Show<frmX>(frame): modeless, above the frame, each exists
/// once. Enter is cmdOK; cmdCancel, Esc and the window's close button unload the form and do nothing else. A
/// form's constructor calls its setupUi and then Wire; its cmdOK_Click ends with Unload().
class TagDialog : public QDialog {
    Q_OBJECT

  public:
    /// The owner is the frame's window unless another is given.
    explicit TagDialog(Frame& frame, QWidget* owner = nullptr);
    ~TagDialog() override;

    void reject() override;

  protected:
    /// Connects OK, which becomes the default button, and Cancel.
    void Wire(QPushButton& ok, QPushButton& cancel);
    /// Reads the fields, builds the tag, inserts it and unloads the form.
    virtual void cmdOK_Click() = 0;
    /// The open and close string into the active document, their case kept. Without a document nothing
    /// happens.
    void Insert(const QString& open, const QString& close = QString());
    /// Closes the form and forgets it. What it was asked once it does once.
    void Unload();

    Frame& frame_;
};
