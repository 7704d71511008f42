// The values that the program carries: read from the store as it starts, written back as it stops.
#pragma once

#include "platform/store/SettingsKeys.h"

#include <functional>
#include <vector>

class MainFrame;

/// The step of the start that reads a value.
enum class ReadAt { UseAutoFill, Geometry, Dictionaries, EditorValues, LastDir, ProgramValues, Lists };

/// The step of the stop that writes it, Never for what only the Options dialog writes.
enum class WrittenAt {
    Never,
    RunCount,
    Dictionaries,
    TextColors,
    LinkColor,
    EditorValues,
    Geometry,
    WindowState,
    RecentFiles,
    UserButtons,
};

/// One value: its key, and the two ways between the store and the place where the program keeps it.
struct CarriedValue {
    SettingsKey key;
    ReadAt readAt;
    WrittenAt writtenAt;
    /// Takes what is stored, or the key's default. A text that doesn't convert leaves the value as it was.
    std::function<void(MainFrame&)> read;
    std::function<void(MainFrame&)> write;
};

/// The table, and what start and stop do with it.
class CarriedValues {
  public:
    explicit CarriedValues(MainFrame& frame);

    /// Those of one step are read, and those of one step are written, in the order of this table.
    const std::vector<CarriedValue>& Rows() const { return rows_; }
    void Read(ReadAt step) const;
    void Write(WrittenAt step) const;

  private:
    MainFrame& frame_;
    std::vector<CarriedValue> rows_;
};
