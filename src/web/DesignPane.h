// The design control: edits a page as it looks, and writes it back to its file.
#pragma once

#include "editor/views/WebControls.h"
#include "web/PageSource.h"
#include "web/WebPane.h"

#include <optional>
#include <QString>

class DesignPage;
struct EditedPage;

class DesignPane final : public WebPane, public DesignControl {
    Q_OBJECT

  public:
    explicit DesignPane(QWidget* parent) : WebPane(parent) {}

    QWidget& widget() override { return *this; }
    void TakeEncoding(TextEncoding encoding) override { encoding_ = encoding; }
    void Load(const QString& path) override;
    QString LoadedPath() const override { return path_; }
    /// Waits for a page that is still coming up, with the user's input held back, and no longer than some
    /// seconds.
    WriteResult Save(const QString& path) override;
    std::optional<QByteArray> Unsaved() const override { return unsaved_; }

  Q_SIGNALS:
    /// The page came up (or did not), or the engine died.
    void Settled();

  protected:
    void Emptied() override;

  private:
    enum class State { Empty, Loading, Ready };

    DesignPage* Edited() const;
    void ShowMenu(QPoint at);
    bool WaitUntilReady();
    std::optional<EditedPage> Collect();

    State state_ = State::Empty;
    QString path_;
    TextEncoding encoding_ = TextEncoding::Ascii;
    std::optional<PageSource> source_;
    std::optional<QByteArray> unsaved_;
};
