#include "ftp/LineEnds.h"

#include <utility>

QByteArray LineEnds::Take(QByteArrayView block) {
    QByteArray taken;
    taken.reserve(block.size() + 1);
    for (const char byte : block) {
        if (std::exchange(carriageReturn_, byte == '\r') && byte != '\n')
            taken += '\r';
        if (byte != '\r')
            taken += byte;
    }
    return taken;
}

QByteArray LineEnds::End() {
    return std::exchange(carriageReturn_, false) ? QByteArray("\r") : QByteArray();
}
