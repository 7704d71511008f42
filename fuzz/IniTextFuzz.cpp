// Reads any bytes as a settings file: what was understood comes back the same from what is written of it.
#include "platform/store/IniText.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    const IniValues read = IniText::Read(bytes);
    if (IniText::Read(IniText::Write(read)) != read)
        std::abort();
    return 0;
}
