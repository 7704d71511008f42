// Shows the pages of the help.
#pragma once

#include <QTextBrowser>

class HelpBook;

/// Takes pages and pictures from the help file and from nowhere else.
class HelpBrowser final : public QTextBrowser {
    Q_OBJECT

  public:
    explicit HelpBrowser(QWidget* parent = nullptr);

    void SetBook(const HelpBook& book) { book_ = &book; }
    /// Shows a page by its name, with "#place" where it is one in it.
    void ShowPage(const QString& name);
    /// The name of the page on view, without a place in it.
    QString Page() const;
    /// Larger by one step, smaller by one, or as at first.
    void ZoomBy(int steps);
    void ResetZoom();

  protected:
    QVariant loadResource(int type, const QUrl& name) override;

  private:
    const HelpBook* book_ = nullptr;
    int zoom_ = 0;
};
