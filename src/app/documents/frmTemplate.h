// A document window: a child window of the frame that holds one text control.
#pragma once

#include "editor/frame/Document.h"

#include <memory>
#include <QMdiSubWindow>
#include <QString>

class Frame;
class QTimer;
enum class MsgAnswer;

/// The document itself: its caption, its modified flag and its text are all there is. Born by
/// frmTarnwick::NewDocument, gone by Unload, which is also what its close button does.
class frmTemplate final : public QMdiSubWindow, public Document {
    Q_OBJECT

  public:
    explicit frmTemplate(Frame& frame);
    ~frmTemplate() override;

    /// What happens once the window is in the frame's area, before it is seen: reads the settings as they
    /// stand, and shows it in the state that TemplateWindowState has.
    void Form_Load();
    /// The window became the active one.
    void Form_Activate();
    /// Gives the focus to what is in front: the text, or the design or browser view.
    void FocusFront(Qt::FocusReason reason);
    /// The background that is chosen now, black included.
    void TakeBackground();
    /// The text takes the window's inside; the design and browser views keep their distance. Public, since
    /// the Options dialog asks for it.
    void Form_Resize();
    /// Asks about saving where the text changed. False on Cancel, and then nothing happened; else the
    /// document counts no longer, and the window has to go.
    bool Form_QueryUnload();
    /// Asks about saving as closing the window does, and lets the window stand: the session may yet go on.
    /// Only one that is not to be saved goes. False on Cancel.
    bool SaveAtSessionEnd();

    /// Until it is unloaded; then it is no one's document any more, though its window may still be there.
    bool IsOpen() const { return stage_ != Unloaded; }
    QString Caption() const override { return caption_; }
    void SetCaption(const QString& path) override;
    bool Modified() const override { return modified_; }
    void SetModified(bool modified) override;
    TextEncoding Encoding() const override { return encoding_; }
    void SetEncoding(TextEncoding encoding) override;
    KnownFile& OnDisk() override { return onDisk_; }
    RichTextBox& txtInput() override { return *txtInput_; }
    QWidget& Window() override { return *this; }
    DocumentModes* Modes() override { return modes_.get(); }
    bool Unload() override;
    /// The size of a window that is neither maximised nor arranged: three quarters of the area.
    QSize sizeHint() const override;

    /// One shot: brings up the auto-fill list after a pause in typing.
    QTimer& Timer1() { return *timer1_; }

  Q_SIGNALS:
    /// The modified flag is another one than before.
    void ModifiedChanged();
    /// The text changed, or what is known of it: its caption, its encoding, whether it is modified.
    void Altered();
    /// The window goes; all of the document is still there. Modified then means: neither saved nor given up.
    void Going();

  protected:
    void showEvent(QShowEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void ReadSettings();
    void ShowInItsState();
    /// Yes, with nothing asked, where nothing changed. Cancel also where the file is to be left as others
    /// changed it.
    MsgAnswer AskAboutSaving();
    void TakeDown();

    Frame& frame_;
    QString caption_;
    bool modified_ = false;
    TextEncoding encoding_ = TextEncoding::Ascii;
    KnownFile onDisk_;
    QWidget* client_;
    RichTextBox* txtInput_;
    QTimer* timer1_;
    std::unique_ptr<DocumentModes> modes_;
    enum { Open, Asking, Unloaded } stage_ = Open;
};
