// A test frame whose files really open and save: the menu entries of the recent files, and the commands on
// files.
#pragma once

#include "app/documents/DocumentPaths.h"
#include "app/documents/FileCommands.h"
#include "app/documents/OpenDocument.h"
#include "app/documents/Preview.h"
#include "app/documents/Skeletons.h"
#include "app/surface/MenuEntry.h"
#include "platform/store/ProgramFolder.h"
#include "support/FreshUser.h"
#include "support/TestFrame.h"

#include <gtest/gtest.h>
#include <QFile>

class FilesFrame : public TestFrame {
  public:
    FilesFrame() {
        for (int n = 0; n < 8; ++n)
            AddEntry(QStringLiteral("mnuFileArray_%1").arg(n));
        AddEntry(QStringLiteral("mnuSep10"));
        auto& paths = State<DocumentPaths>();
        QObject::connect(&paths, &DocumentPaths::Taken, window.get(),
                         [this](const QString& path, const QString& caption) { AddTab(path, caption); });
        QObject::connect(&paths, &DocumentPaths::Left, window.get(),
                         [this](const QString& path) { tabs.removeAll(path); });
        FillFileCommands(*this);
        FillSkeletonCommands(*this);
        FillPreviewCommands(*this);
    }
    void OpenDocumentFile(const QString& path) override {
        opened << path;
        ::OpenDocumentFile(*this, path);
    }
    SaveResult SaveActiveDocument() override {
        ++saves;
        return mnuSave_Click(*this);
    }
    void Run(const char* command) { commands.Run(QString::fromLatin1(command)); }

    /// The paths of the recent files that are shown, the newest first.
    QStringList Recent() {
        QStringList shown;
        for (int n = 0; n < 8; ++n) {
            const QAction* entry = MenuEntry(*this, QStringLiteral("mnuFileArray_%1").arg(n));
            if (entry->isVisible())
                shown << entry->text();
        }
        return shown;
    }

    static QString At(const QString& name) { return TestFolder() + u'/' + name; }
    static QString Make(const QString& name, const QByteArray& content) { return MakeAt(At(name), content); }
    static QString MakeAt(const QString& path, const QByteArray& content) {
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        EXPECT_EQ(file.write(content), content.size());
        return path;
    }
    /// The folder of what is kept, which need not be there.
    static QString Recovery() { return InProgramFolder(QStringLiteral("recovery")); }
    static QByteArray Content(const QString& path) {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(unreadable)");
    }

    /// The paths of the document tabs, and their captions in the same order of adding.
    QStringList tabs, tabCaptions;

  private:
    void AddTab(const QString& path, const QString& caption) {
        if (tabs.contains(path))
            return;
        tabs << path;
        tabCaptions << caption;
    }
    void AddEntry(const QString& name) {
        auto* entry = new QAction(window.get());
        entry->setObjectName(name);
        entry->setVisible(false);
    }
};
