// Searching bytes for bytes in a time that grows with the two lengths, never with their product.
#pragma once

#include <QByteArray>
#include <vector>

class ByteSearch {
  public:
    /// What is searched for must not be empty.
    explicit ByteSearch(QByteArray wanted);

    qsizetype Size() const { return wanted_.size(); }
    /// Where the first match begins that begins at from or behind it; -1 where there is none.
    qsizetype IndexIn(QByteArrayView bytes, qsizetype from = 0) const;

  private:
    QByteArray wanted_;
    /// For each beginning of what is wanted, by its last byte: how much of its end is again a beginning.
    std::vector<int> again_;
};
