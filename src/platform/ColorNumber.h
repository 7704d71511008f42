// A colour as documents and settings hold it.
#pragma once

/// Red in the low byte, then green, then blue.
using ColorNumber = int;
