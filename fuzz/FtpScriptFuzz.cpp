// Scripts of the upload client: every line is read, and a file to send is named.
#include "ftp/Command.h"
#include "ftp/Script.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const Script script = ReadScript(QByteArrayView(data, static_cast<qsizetype>(size)));
    for (const QString& line : script.commands) {
        const Command command = ReadCommand(line);
        if (ReadPutNames(command.rest).local.endsWith(u' ') && command.rest.startsWith(u'"'))
            std::abort();
        Words(command.rest);
        NameIn(command.rest);
    }
    return 0;
}
