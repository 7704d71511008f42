#include "ftp/Client.h"

#include "ftp/Command.h"

#include <algorithm>
#include <QFileInfo>

namespace {

enum class Where { Here, AtTheServer };

/// A script's line as a person wants to read it: a project's file without its padding.
QString Shown(const QString& line) {
    const Command command = ReadCommand(line);
    if (command.word != QStringLiteral("put"))
        return line;
    const PutNames names = ReadPutNames(command.rest);
    return QStringLiteral("put \"%1\" %2").arg(names.local, names.remote);
}

} // namespace

/// Without a run it is the last command.
struct Client::CommandRow {
    const char* word;
    Where where;
    void (*run)(Client&, const QString& rest);
    const char* help;
};

std::span<const Client::CommandRow> Client::Rows() {
    using C = Client;
    using Rest = const QString&;
    static const CommandRow rows[] = {
        {"ascii", Where::Here, [](C& c, Rest) { c.SetType(FileType::Ascii); }, "sends and fetches text"},
        {"bin", Where::Here, [](C& c, Rest) { c.SetType(FileType::Binary); }, "sends files as they are"},
        {"bye", Where::Here, nullptr, "ends"},
        {"cd", Where::AtTheServer, [](C& c, Rest rest) { c.ChangeFolder(rest); }, "FOLDER: goes there"},
        {"delete", Where::AtTheServer,
         [](C& c, Rest rest) { c.Needs(rest) && c.session_.Delete(NameIn(rest)); }, "FILE: deletes it"},
        {"get", Where::AtTheServer, [](C& c, Rest rest) { c.Get(rest); }, "FILE [LOCAL-FILE]: fetches it"},
        {"hash", Where::Here, [](C& c, Rest) { c.Hash(); }, "shows a mark for each 64 KB, or none again"},
        {"help", Where::Here, [](C& c, Rest) { c.Help(); }, "shows this list"},
        {"lcd", Where::Here, [](C& c, Rest rest) { c.ChangeLocalFolder(rest); },
         "[FOLDER]: the folder of local files"},
        {"ls", Where::AtTheServer, [](C& c, Rest rest) { c.session_.List(NameIn(rest)); },
         "[FOLDER]: lists its files"},
        {"mkdir", Where::AtTheServer,
         [](C& c, Rest rest) { c.Needs(rest) && c.session_.MakeFolder(NameIn(rest)); }, "FOLDER: makes it"},
        {"put", Where::Here, [](C& c, Rest rest) { c.Put(rest); }, "FILE [NAME]: sends it"},
        {"pwd", Where::AtTheServer, [](C& c, Rest) { c.session_.TellFolder(); }, "shows the folder"},
        {"quit", Where::Here, nullptr, "ends"},
        {"rename", Where::AtTheServer, [](C& c, Rest rest) { c.Rename(rest); }, "FILE NEW-NAME: renames it"},
    };
    return rows;
}

Client::Client(const ServerAddress& address, Screen& screen, Cancel& cancel)
    : session_(address, screen, cancel), screen_(screen), cancel_(cancel) {}

void Client::LogIn(const QString& user, const QString& password) {
    if (!session_.LogIn(user, password))
        ++failures_;
}

void Client::Run(const Script& script) {
    LogIn(script.user, script.password);
    for (qsizetype i = 0; i < script.commands.size(); ++i) {
        if (cancel_.IsAsked())
            return LeaveOut(script.commands.mid(i));
        const QString& line = script.commands[i];
        screen_.Line(Prompt + Shown(line));
        if (!Run(line))
            break;
    }
    strayed_ = false;
}

void Client::LeaveOut(const QStringList& commands) {
    const auto left = std::count_if(commands.begin(), commands.end(), [](const QString& line) {
        return ReadCommand(line).word == QStringLiteral("put");
    });
    failures_ += static_cast<int>(left);
    screen_.Line(QStringLiteral("Stopped; %1 files were not sent.").arg(left));
}

bool Client::Run(const QString& line) {
    const Command command = ReadCommand(line);
    if (command.word.isEmpty())
        return true;
    const auto rows = Rows();
    const auto row = std::ranges::find_if(
        rows, [&](const CommandRow& one) { return command.word == QLatin1String(one.word); });
    if (row == rows.end()) {
        screen_.Line(QStringLiteral("?Invalid command."));
        return true;
    }
    if (!row->run)
        return false;
    if (row->where == Where::AtTheServer && !session_.IsConnected())
        screen_.Line(QStringLiteral("Not connected."));
    else
        row->run(*this, command.rest);
    return true;
}

bool Client::Needs(const QString& given) {
    if (given.isEmpty())
        screen_.Line(QStringLiteral("A name is missing; \"help\" shows what goes where."));
    return !given.isEmpty();
}

void Client::Put(const QString& rest) {
    if (!Needs(rest))
        return;
    const PutNames names = ReadPutNames(rest);
    bool sent = false;
    if (!session_.IsConnected())
        screen_.Line(QStringLiteral("Not sent: not connected."));
    else if (strayed_)
        screen_.Line(QStringLiteral("Not sent: its folder could not be reached."));
    else
        sent = session_.Put(local_.absoluteFilePath(names.local), names.remote);
    if (!sent)
        ++failures_;
}

void Client::Get(const QString& rest) {
    const QStringList words = Words(rest);
    if (!Needs(words.value(0)))
        return;
    // Without a folder of the server's: a name must not lead out of the local one.
    const QString own = words[0].mid(words[0].lastIndexOf(u'/') + 1);
    session_.Get(words[0], local_.absoluteFilePath(words.value(1, own)));
}

void Client::ChangeFolder(const QString& rest) {
    if (Needs(rest))
        strayed_ = !session_.ChangeFolder(NameIn(rest));
}

void Client::ChangeLocalFolder(const QString& rest) {
    const QString name = NameIn(rest);
    if (!name.isEmpty() && !local_.cd(name))
        screen_.Line(QStringLiteral("There is no such folder."));
    else
        screen_.Line(QStringLiteral("Local files are in %1").arg(QDir::toNativeSeparators(local_.path())));
}

void Client::SetType(FileType type) {
    session_.SetType(type);
    screen_.Line(type == FileType::Ascii
                     ? QStringLiteral("Files go as text: line ends become the other side's.")
                     : QStringLiteral("Files go as they are."));
}

void Client::Hash() {
    session_.SetMarks(!session_.Marked());
    screen_.Line(session_.Marked() ? QStringLiteral("A mark (#) for each 64 KB.")
                                   : QStringLiteral("No marks."));
}

void Client::Help() {
    for (const CommandRow& row : Rows())
        screen_.Line(QString::fromLatin1(row.word).leftJustified(8) + QString::fromLatin1(row.help));
}

void Client::Rename(const QString& rest) {
    const QStringList words = Words(rest);
    if (Needs(words.value(1)))
        session_.Rename(words[0], words[1]);
}
