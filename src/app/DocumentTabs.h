// The document tab strip: one tab for each document that has a file.
#pragma once

#include <QTabBar>

/// TabStrip2. A tab's key and Tag are the full path of a file, its caption is the bare name. Only what a
/// person does with mouse or keyboard is a click; tabs that the program adds, takes away or selects make
/// none.
class DocumentTabs final : public QTabBar {
    Q_OBJECT

  public:
    explicit DocumentTabs(QWidget* parent = nullptr);

    /// Adds a tab at the end. A key stands once: a path that has a tab keeps the one it has.
    void Add(const QString& path, const QString& caption);
    /// Takes away the tab of that key, if there is one.
    void Remove(const QString& path);
    void RemoveAll();
    /// Selects the first tab whose Tag is the path, if there is one.
    void Select(const QString& path);
    /// The Tag of a tab, counted from 0; empty where there is none.
    QString Tag(int index) const { return tabData(index).toString(); }

  Q_SIGNALS:
    /// A person selected a tab, or pressed the one that was selected already.
    void Click(int index);

  private:
    int IndexOf(const QString& path) const;
};
