// Chance that can be had again: the same seed gives the same numbers on every machine.
#pragma once

#include <initializer_list>
#include <QtGlobal>
#include <random>

class Dice {
  public:
    explicit Dice(quint64 seed) : engine_(seed) {}

    /// 0 to n - 1. The library's own distributions differ from one to the next, and so are not used.
    int Below(int n) { return n > 0 ? static_cast<int>(engine_() % static_cast<quint64>(n)) : 0; }
    int Between(int first, int last) { return first + Below(last - first + 1); }
    bool Percent(int chance) { return Below(100) < chance; }
    bool OneIn(int n) { return Below(n) == 0; }
    template <typename List> auto& From(List& list) { return list[Below(static_cast<int>(std::size(list)))]; }
    template <typename T> T Of(std::initializer_list<T> list) {
        return list.begin()[Below(static_cast<int>(list.size()))];
    }

  private:
    std::mt19937_64 engine_;
};
