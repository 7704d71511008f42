// What a server says, so far as the upload client reads it: answers, and a certificate.
#include "ftp/Answers.h"
#include "ftp/Certificate.h"
#include "ftp/TextBytes.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    const QList<QByteArray> lines = bytes.split('\n');
    AnswerForm form;
    for (const QByteArray& line : lines) {
        form.Takes(line);
        if (FromServer(line).contains(QChar(0x1B)))
            std::abort();
    }
    FolderIn(lines);
    ReadCertificate(lines);
    ReadCertificate({"Cert:-----BEGIN CERTIFICATE-----" + bytes.toBase64() + "-----END CERTIFICATE-----"});
    return 0;
}
