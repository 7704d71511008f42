// What a document knows of its file.
#pragma once

#include "platform/store/FileMark.h"

#include <optional>

struct KnownFile {
    /// As it was when the document was last read from it or written to it; unset for a document without one.
    FileMark mark;
    /// The change by others that the user was told of.
    std::optional<FileStatus> told;
    /// False while the file holds more than was read of it: it is kept before it is written over.
    bool wasReadWhole = true;
};
