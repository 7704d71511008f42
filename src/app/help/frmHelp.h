// The help window: contents, index and search at the left, the page at the right.
#pragma once

#include <memory>
#include <QWidget>

class Frame;
class HelpBook;
class QTreeWidgetItem;

namespace Ui {
class frmHelp;
}

/// A window of its own, which the user can put beside the frame. Esc closes it.
class frmHelp final : public QWidget {
    Q_OBJECT

  public:
    /// Above the frame's other windows; for a modal dialog it is a window of that dialog's, since the dialog
    /// would block any other.
    frmHelp(Frame& frame, std::shared_ptr<const HelpBook> book, QWidget* owner = nullptr);
    ~frmHelp() override;

    void ShowPage(const QString& page);

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

  private:
    void WireTabs();
    void WirePages();
    void WireButtons();
    void FillContents();
    void FillIndex();
    void txtKeyword_Change(const QString& start);
    void cmdSearch_Click();
    void cmdPrint_Click();
    void PageChanged();

    std::unique_ptr<Ui::frmHelp> ui_;
    Frame& frame_;
    std::shared_ptr<const HelpBook> book_;
};
