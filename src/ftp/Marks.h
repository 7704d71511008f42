// Hash marks: one for each 64 KB of a transfer.
#pragma once

#include "ftp/Screen.h"

class Marks {
  public:
    static constexpr qint64 BytesPerMark = 65536;

    Marks(Screen& screen, bool on) : screen_(screen), on_(on) {}

    /// So many bytes are done by now.
    void Reach(qint64 done) {
        for (; on_ && shown_ < done / BytesPerMark; ++shown_)
            screen_.Mark();
    }
    void Rewind() { shown_ = 0; }

  private:
    Screen& screen_;
    const bool on_;
    qint64 shown_ = 0;
};
