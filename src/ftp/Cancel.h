// The wish to stop, told from one thread to another.
#pragma once

#include <atomic>

class Cancel {
  public:
    /// What is under way ends; the next command is carried out again.
    void Stop() {
        Wish none = Wish::GoOn;
        wish_.compare_exchange_strong(none, Wish::Stop);
    }
    /// Everything ends, for good.
    void Close() { wish_ = Wish::Close; }
    /// Forgets a Stop.
    void Reset() {
        Wish stop = Wish::Stop;
        wish_.compare_exchange_strong(stop, Wish::GoOn);
    }
    bool IsAsked() const { return wish_ != Wish::GoOn; }
    bool IsClosed() const { return wish_ == Wish::Close; }

  private:
    enum class Wish { GoOn, Stop, Close };
    std::atomic<Wish> wish_ = Wish::GoOn;
};
