// The document tab strip: one tab for each document that has a file.
#pragma once

#include <QSet>
#include <QTabBar>

/// TabStrip2. A tab is known by its key, the full path of its file; its caption is the bare name. Its Tag is
/// the path of the window that a click on it brings up: the key, but for what Add tells. Only what a person
/// does with mouse or keyboard is a click; tabs that the program adds, takes away or selects make none.
class DocumentTabs final : public QTabBar {
    Q_OBJECT

  public:
    explicit DocumentTabs(QWidget* parent = nullptr);

    /// Adds a tab at the end; the last tab's Tag is then the path. A key stands once: a path that has a tab
    /// keeps the one it has, and still becomes the Tag of the last one, whosever that is. So it goes where a
    /// document is saved as a file that is open in another window.
    void Add(const QString& path, const QString& caption);
    /// Takes away the tab of that key, if there is one.
    void Remove(const QString& path);
    void RemoveAll();
    /// Selects the first tab whose Tag is the path. Where there is none, such as for a document without a
    /// file, no tab looks selected, though the keys still start from the last one.
    void Select(const QString& path);
    /// Gives the focus to the current tab, if there is one.
    void TakeFocus();
    /// Whether the current tab looks selected.
    bool ShowsSelection() const { return showsSelection_ && currentIndex() >= 0; }
    /// The keys of the documents whose text changed: their tabs show a dot beside the caption, and say so in
    /// their tip, which is what a screen reader tells of a tab beside its caption.
    void SetMarked(const QStringList& paths);
    bool IsMarked(int index) const { return marked_.contains(DataOf(index, Key)); }
    /// The Tag of a tab, counted from 0; empty where there is none.
    QString Tag(int index) const { return DataOf(index, TagOfTab); }

  Q_SIGNALS:
    /// A person selected a tab, or pressed the one that was selected already.
    void Click(int index);

  protected:
    void initStyleOption(QStyleOptionTab* option, int index) const override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void tabInserted(int index) override;
    void tabRemoved(int index) override;

  private:
    /// What the strip keeps beside what it shows.
    enum Data { Key, TagOfTab };
    QString DataOf(int index, Data which) const { return tabData(index).toStringList().value(which); }
    /// The first tab whose data hold the path; -1 where there is none.
    int IndexOf(const QString& path, Data which) const;
    void ShowSelection(bool shown);

    QRectF MarkPlace(int index) const;
    void TellMark(int index);

    bool showsSelection_ = false;
    QSet<QString> marked_;
};
