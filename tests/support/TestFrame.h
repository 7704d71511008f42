// A frame without menus and strips, for tests of everything below the application.
#pragma once

#include "editor/frame/Commands.h"
#include "editor/frame/Document.h"
#include "editor/frame/Forms.h"
#include "editor/frame/Frame.h"
#include "editor/views/Modes.h"
#include "platform/store/Settings.h"
#include "platform/text/RichTextBox.h"
#include "support/ScriptedPrompts.h"
#include "support/Text.h"

#include <memory>
#include <QPoint>
#include <QStringList>
#include <QTimer>
#include <QWidget>
#include <vector>

/// A text control that keeps every RTF stream it was given.
class RecordingBox final : public RichTextBox {
    Q_OBJECT

  public:
    using RichTextBox::RichTextBox;
    void SetSelRTF(const QString& rtf) override {
        enabledDuringWrite = Enabled();
        streams << rtf;
        RichTextBox::SetSelRTF(rtf);
    }

    QStringList streams;
    bool enabledDuringWrite = true;
};

/// A document window that is nothing but its text control.
class TestDocument final : public QWidget, public Document {
    Q_OBJECT

  public:
    explicit TestDocument(QWidget* parent);
    ~TestDocument() override;

    QString Caption() const override { return caption; }
    void SetCaption(const QString& path) override { caption = path; }
    bool Modified() const override { return modified; }
    void SetModified(bool value) override { modified = value; }
    TextEncoding Encoding() const override { return encoding; }
    void SetEncoding(TextEncoding value) override {
        encoding = value;
        input->SetHolds(CharactersOf(value));
    }
    KnownFile& OnDisk() override { return onDisk; }
    RichTextBox& txtInput() override { return *input; }
    QWidget& Window() override { return *this; }
    bool Unload() override;
    DocumentModes* Modes() override { return modes.get(); }

    QString caption;
    bool modified = false;
    TextEncoding encoding = TextEncoding::Ascii;
    KnownFile onDisk;
    RecordingBox* input;
    QTimer Timer1;
    /// None until a test gives it some.
    std::unique_ptr<DocumentModes> modes;
};

/// Starts with one open document, active. Every call that goes to the application is recorded.
class TestFrame : public Frame {
  public:
    /// Empties the settings of the user before anything reads them.
    TestFrame();
    ~TestFrame() override;

    Document* ActiveForm() override { return active; }
    void ActivateDocument(Document& document) override { active = dynamic_cast<TestDocument*>(&document); }
    QWidget* Window() override { return window.get(); }
    Forms& LoadedForms() override { return *forms; }
    Settings& Store() override { return *settings; }
    Prompts& Ask() override { return prompts; }
    CommandSet& Commands() override { return commands; }
    void NewDocument() override;
    void OpenDocumentFile(const QString& path) override { opened << path; }
    SaveResult SaveActiveDocument() override {
        ++saves;
        return saveResult;
    }
    SaveResult WriteOver(Document&, const std::function<WriteResult()>& write) override {
        if (overResult)
            return *overResult;
        return write() ? SaveResult::Saved : SaveResult::Failed;
    }
    void PreviewInBrowser(const QString& path) override { previewed << path; }
    void SetStatusPanel(const QString& text, bool now) override;
    void SetIdlePanel(const QString& text) override { SetStatusPanel(text, false); }
    void ShowNotice(const QString& text) override { SetStatusPanel(text, false); }
    void SelectDocumentTab(const QString& path) override { selectedTabs << path; }
    void PopUpEditMenu(QPoint at) override { popUps.push_back(at); }
    void SelectModeTab(const QString& caption) override { modeTabs << caption; }

    /// The active document's control.
    RecordingBox& Box() { return *active->input; }
    /// The colours of the active document's text, one stretch a row: text and colour number.
    std::vector<std::pair<QString, int>> Colors();
    /// Puts a text into the active document, plain, caret at its end.
    void SetText(const QString& text);
    /// The same with the caret or a selection where the marks stood: "|" is the caret, "[" and "]" stand
    /// around a selection.
    void SetMarked(QString marked);
    void SetMarked(const char* latin1) { SetMarked(QString::fromLatin1(latin1)); }
    /// The text with a "|" at the caret, or with "[" and "]" around the selection.
    QString Marked();
    /// Closes the active document: there is none afterwards.
    void CloseDocument();

    ScriptedPrompts prompts;
    CommandSet commands;
    std::unique_ptr<QWidget> window;
    std::unique_ptr<Forms> forms;
    std::unique_ptr<Settings> settings;
    TestDocument* active = nullptr;

    QStringList opened, previewed, statuses, selectedTabs, modeTabs;
    std::vector<QPoint> popUps;
    int saves = 0;
    /// What the Save command says, and what becomes of a step that is to write over a file instead of that
    /// step.
    SaveResult saveResult = SaveResult::Saved;
    std::optional<SaveResult> overResult;
};
