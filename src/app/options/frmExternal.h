// The Options dialog: external programs, the look of the editor, and the general switches.
#pragma once

#include <array>
#include <memory>
#include <QDialog>

class ColorSample;
class Frame;
class QCheckBox;
struct SettingsKey;

namespace Ui {
class frmExternal;
}

/// Modal. The check boxes act as they are clicked, whatever button ends the dialog; OK takes over the page on
/// view and no other.
class frmExternal final : public QDialog {
    Q_OBJECT

  public:
    explicit frmExternal(Frame& frame);
    ~frmExternal() override;

    void reject() override;

    /// Takes over page 2, the colours and the font. False where the size is no number: the dialog then stays.
    bool SelectTagColor();
    /// Takes over page 1, the external programs. False where they could not be stored: the dialog then stays.
    bool ExtProgs();

  protected:
    void resizeEvent(QResizeEvent* event) override;

  private:
    void WirePages();
    void WireFlags();
    void WireSamples();
    void Form_Load();
    void LoadFlags();
    void LoadFonts();
    void LoadColors();
    void ShowPrograms();
    void Unload();

    void Flag(QCheckBox& box, const SettingsKey& key);
    void chkAutoFill_Click(bool on);
    void chkWordWrap_Click(bool on);
    void chkMSIEInstalled_Click(bool on);
    void chkShowButtons_Click(bool on);
    void chkLocFTP_Click(bool on);
    void cmdBrowse_Click();
    void cmdFTPBrowse_Click();
    void lblTag_Click(int index);
    void lblTagBG_DblClick();
    void Command2_Click();

    std::unique_ptr<Ui::frmExternal> ui_;
    Frame& frame_;
    std::array<ColorSample*, 6> lblTag_;
    bool resized_ = false;
};

/// Registers mnuWebBrowser: shows the dialog over the frame and waits for its end.
void mnuWebBrowser_Click(Frame& frame);
