// The design and browser controls without an engine: they note what is asked of them.
#pragma once

#include "editor/views/WebControls.h"

#include <functional>
#include <QString>
#include <QStringList>
#include <QWidget>
#include <vector>

/// The path that was loaded is the path of its page; an edit is what a test says it is.
class FakeDesign final : public QWidget, public DesignControl {
  public:
    explicit FakeDesign(QWidget* parent) : QWidget(parent) { hide(); }
    QWidget& widget() override { return *this; }
    void TakeEncoding(TextEncoding encoding) override { encodings.push_back(encoding); }
    void Load(const QString& path) override {
        loads << path;
        loaded = path;
    }
    QString LoadedPath() const override { return loaded; }
    WriteResult Save(const QString& path) override {
        saves << path;
        if (writes)
            writes(path);
        return unsaved ? WriteResult::Failed(QStringLiteral("no room")) : result;
    }
    std::optional<QByteArray> Unsaved() const override { return unsaved; }

    QString loaded;
    /// What saving does to the file; nothing by itself.
    std::function<void(const QString& path)> writes;
    WriteResult result;
    /// A page whose saving comes to nothing.
    std::optional<QByteArray> unsaved;
    QStringList loads, saves;
    std::vector<TextEncoding> encodings;
};

class FakeBrowser final : public QWidget, public BrowserControl {
  public:
    explicit FakeBrowser(QWidget* parent) : QWidget(parent) { hide(); }
    QWidget& widget() override { return *this; }
    void TakeEncoding(TextEncoding encoding) override { encodings.push_back(encoding); }
    bool Navigate(const QString& path) override {
        pages << path;
        return works;
    }

    bool works = true;
    QStringList pages;
    std::vector<TextEncoding> encodings;
};

/// Makes the two, and counts.
class FakeFactory final : public WebControlsFactory {
  public:
    DesignControl* MakeDesign(QWidget* parent) override {
        ++made;
        return new FakeDesign(parent);
    }
    BrowserControl* MakeBrowser(QWidget* parent) override {
        ++made;
        return new FakeBrowser(parent);
    }
    int made = 0;
};
