#include "ftp/Answers.h"

#include <algorithm>

namespace {

QByteArray QuotedIn(const QByteArray& line) {
    QByteArray name;
    for (qsizetype at = line.indexOf('"') + 1; at > 0 && at < line.size(); ++at) {
        const bool quote = line[at] == '"';
        if (quote && (at + 1 == line.size() || line[at + 1] != '"'))
            return name;
        name += line[at];
        if (quote)
            ++at;
    }
    return QByteArray();
}

bool HasControls(const QByteArray& name) {
    return std::any_of(name.begin(), name.end(),
                       [](char byte) { return (byte >= 0 && byte < 0x20) || byte == 0x7F; });
}

} // namespace

QByteArray FolderIn(const QList<QByteArray>& answers) {
    const auto told = std::find_if(answers.rbegin(), answers.rend(),
                                   [](const QByteArray& line) { return line.startsWith("257"); });
    const QByteArray name = told == answers.rend() ? QByteArray() : QuotedIn(*told);
    return HasControls(name) ? QByteArray() : name;
}

bool AnswerForm::Takes(const QByteArray& line) {
    constexpr qsizetype digits = 3;
    if (!end_.isEmpty()) {
        if (line.startsWith(end_))
            end_.clear();
        return true;
    }
    const bool numbered =
        line.size() > digits && std::all_of(line.begin(), line.begin() + digits,
                                            [](char byte) { return byte >= '0' && byte <= '9'; });
    if (numbered && line[digits] == '-')
        end_ = line.first(digits) + ' ';
    return numbered;
}

bool RefusesPassive(CURLcode code, const QList<QByteArray>& answers) {
    const bool offered = std::any_of(answers.begin(), answers.end(), [](const QByteArray& line) {
        return line.startsWith("227") || line.startsWith("229");
    });
    return code == CURLE_FTP_WEIRD_PASV_REPLY || code == CURLE_FTP_WEIRD_227_FORMAT ||
           code == CURLE_FTP_CANT_GET_HOST || (code == CURLE_COULDNT_CONNECT && offered);
}
