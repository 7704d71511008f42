// The start screen, which is the About box as well.
#pragma once

#include <memory>
#include <QWidget>

class Frame;

namespace Ui {
class frmSplash;
}

/// A click on it unloads it; so does any resize of the frame.
class frmSplash final : public QWidget {
    Q_OBJECT

  public:
    explicit frmSplash(Frame& frame);
    ~frmSplash() override;

    /// The words below the version. The start screen has none, the About box tells where to read more.
    void SetMessage(const QString& text);

  protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void Unload();

    std::unique_ptr<Ui::frmSplash> ui_;
    Frame& frame_;
    /// Unloading it brings up the frame.
    bool bringUpFrame_ = true;
};
