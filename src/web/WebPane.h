// What both controls are: a widget with an engine's view in it, once there is something to show.
#pragma once

#include <memory>
#include <QWidget>

class QWebEnginePage;
class QWebEngineProfile;
class QWebEngineView;

/// The profile that all panes share for as long as one lives: nothing of it is ever written to the disk.
std::shared_ptr<QWebEngineProfile> SharedWebProfile();

/// Empty and cheap until the first page; empty again when the process that draws the page dies.
class WebPane : public QWidget {
    Q_OBJECT

  public:
    explicit WebPane(QWidget* parent);
    ~WebPane() override;

  protected:
    /// The pane takes the page, and deletes the one it had.
    void ShowPage(std::unique_ptr<QWebEnginePage> page);
    /// Null while the pane is empty.
    QWebEnginePage* Page() const;
    QWebEngineView* View() const { return view_; }
    /// The engine starts with the first profile, and so no earlier than with the first page.
    QWebEngineProfile& Profile();
    /// To the page that came up, where the pane has the focus: else no key would reach it before a click.
    void PassFocusOn();
    virtual void Emptied() {}
    /// Empties the pane, where its page is of no more use.
    virtual void End() { Empty(); }
    /// Deletes the page.
    void Empty();

  private:
    std::shared_ptr<QWebEngineProfile> profile_;
    QWebEngineView* view_ = nullptr;
};
