// What the empty frame tells who doesn't know how to begin.
#pragma once

#include <functional>
#include <QString>
#include <QWidget>

class LinkButton;
class QLabel;
class QMdiArea;

/// A few lines in the middle of the area: how to begin, and the recent files below. What there is no room for
/// is left out, from the end. Whoever presses it beside a line presses the area. It lies above the area, not
/// in it: screen readers are told of nothing but documents there.
class EmptyFrameText final : public QWidget {
    Q_OBJECT

  public:
    /// run carries out a command by its name.
    EmptyFrameText(QMdiArea& area, std::function<void(const QString&)> run);

    /// The recent files to offer, by their paths.
    void SetFiles(const QStringList& paths);
    /// Gives the focus to the first line.
    void TakeFocus();

  Q_SIGNALS:
    void FileClicked(const QString& path);

  protected:
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

  private:
    QLabel* AddHeading(const QString& text);
    void AddCommand(const QString& name, const QString& title, const QString& note);
    LinkButton* AddLink();
    void TakeColors();
    /// Places the lines, and shows those that fit.
    void Arrange();
    void PlaceLines(QRect inside, int top, bool tight);
    QList<QWidget*> Lines() const;

    void PassToArea(const QMouseEvent& event);

    QMdiArea& area_;
    std::function<void(const QString&)> run_;
    QLabel* begin_;
    QList<LinkButton*> commands_;
    QLabel* recent_;
    QList<LinkButton*> files_;
    QStringList paths_;
};
