// When the empty frame shows its text, and which files it offers.
#pragma once

#include <QHash>
#include <QObject>

class EmptyFrameText;
class FilesThere;
class Frame;
class OpenDocuments;
class QMdiArea;
class QWidget;

/// The text is there while the frame is on the screen and no document is open. It offers those recent files
/// that were found, not those about which nothing is known yet; they are looked up as the text comes up, and
/// whenever the frame comes to the front.
class EmptyFrame final : public QObject {
    Q_OBJECT

  public:
    EmptyFrame(Frame& frame, QMdiArea& area, OpenDocuments& documents);

    /// Gives the focus to the text, if it is shown.
    void TakeFocus();
    /// Whether a widget belongs to the text.
    bool Holds(const QWidget& widget) const;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void Schedule();
    void Update();
    void Show();
    void Hide();
    void LookUpFiles();
    void ShowFiles();
    void Open(const QString& path);
    QStringList RecentPaths() const;

    Frame& frame_;
    /// The frame's, which has events still while the frame goes.
    QWidget& window_;
    QMdiArea& area_;
    FilesThere* files_;
    QHash<QString, bool> there_;
    EmptyFrameText* text_ = nullptr;
    bool scheduled_ = false;
    /// The empty area was seen: the start has not to wait for the text.
    bool painted_ = false;
};
