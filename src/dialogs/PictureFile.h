// Pictures read from files that the user names.
#pragma once

class QPixmap;
class QString;

/// The picture of a file, turned as its camera says: browsers show it so, and count its width and height so.
/// A null one where the file is no picture, or no plain file: a pipe could keep the reader waiting for ever.
QPixmap ReadPicture(const QString& path);
