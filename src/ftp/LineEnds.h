// Line ends of text files on their way to a server.
#pragma once

#include <QByteArray>
#include <QByteArrayView>

/// Turns CR LF into LF, block by block: the library makes CR LF of each LF again, as text goes over the net.
/// Without this a file that has CR LF would arrive with its CR twice.
class LineEnds {
  public:
    /// What can be sent of a block; a CR at its end waits for what follows.
    QByteArray Take(QByteArrayView block);
    /// What still waits at the file's end.
    QByteArray End();

  private:
    bool carriageReturn_ = false;
};
