// The Image dialog: an image tag, bare or wrapped in a link.
#pragma once

#include "dialogs/TagDialog.h"
#include "platform/desktop/FileRequest.h"

#include <memory>

namespace Ui {
class frmGraphicLink;
}

struct ImageFields;

class frmGraphicLink final : public TagDialog {
    Q_OBJECT

  public:
    explicit frmGraphicLink(Frame& frame);
    ~frmGraphicLink() override;

    /// Puts a tag's fields into the form, empty ones too. chkISMAP is only ever checked, and txtLinkMe left
    /// alone.
    void Take(const ImageFields& fields);

  private:
    /// Picks the picture and fills in its size, and its name where there is no alternate text yet.
    void cmdPicOpen_Click();
    /// Picks the low source under the filter that the browse before it had.
    void cmdOpen2_Click();
    /// Picks the link's target, relative to the document whatever chkAbsolute says.
    void cmdLinkMe_Click();
    /// Leaves cboAlign out: no image tag gets an alignment from here.
    void cmdOK_Click() override;

    std::unique_ptr<Ui::frmGraphicLink> ui_;
    FileRequest cdrFileDialog_; ///< the filter of the last browse, for the one that sets none
};
