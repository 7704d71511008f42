// The Link Browser: the links of a document as a tree, each of which a double-click finds in the text.
#pragma once

#include <memory>
#include <QDialog>

class Frame;

namespace Ui {
class frmHTTPExplorer;
}

/// The text whose links the form shows, from the command that shows it to the tree that is built.
struct LinkText {
    QString text;
};

class frmHTTPExplorer final : public QDialog {
    Q_OBJECT

  public:
    explicit frmHTTPExplorer(Frame& frame);
    ~frmHTTPExplorer() override;

    /// Builds the tree of the active document, from the link text, which is empty then.
    void Form_Load();
    void reject() override;

  private:
    void Tree_DblClick();

    Frame& frame_;
    std::unique_ptr<Ui::frmHTTPExplorer> ui_;
};

/// Shows the links of the active document; where the form is up already its tree is built anew. With no
/// document open it says so.
void mnuShowLinks_Click(Frame& frame);
