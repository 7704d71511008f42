#include "ftp/Script.h"

#include "ftp/TextBytes.h"

namespace {

/// The next line, which is taken off the front.
QString TakeLine(QByteArrayView& bytes) {
    const qsizetype end = bytes.indexOf('\n');
    QByteArrayView line = end < 0 ? bytes : bytes.first(end);
    bytes = end < 0 ? QByteArrayView() : bytes.sliced(end + 1);
    if (line.endsWith('\r'))
        line.chop(1);
    return FromScript(line);
}

} // namespace

Script ReadScript(QByteArrayView bytes) {
    Script script;
    script.user = TakeLine(bytes);
    script.password = TakeLine(bytes);
    while (!bytes.isEmpty())
        script.commands << TakeLine(bytes);
    return script;
}
