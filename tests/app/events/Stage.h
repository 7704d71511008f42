// What the events of a run act on.
#pragma once

#include "app/events/Dice.h"
#include "app/events/EventLog.h"
#include "app/events/Hand.h"
#include "app/events/Playground.h"
#include "app/events/Reached.h"
#include "app/window/frmTarnwick.h"

#include <functional>
#include <span>

struct Stage {
    frmTarnwick& frame;
    Dice& dice;
    Hand& hand;
    const Playground& ground;
    EventLog& log;
    const Reached& reached;
    /// Set by an act whose outcome takes the machine's time: the next event comes once it holds.
    std::function<bool()>& awaited;
    /// Whether a view is about to show a page.
    const std::function<bool()>& isLoading;
};

/// Something that a user, the desktop or another program does. Notes itself in the log, then happens; false
/// where there is nothing to do it with.
struct Act {
    bool (*happen)(Stage&);
    /// How often it comes, against the others: with nothing in front, with a modal dialog up, with a menu or
    /// another popup open.
    int free, modal, popup;
};

/// The acts of a room each.
std::span<const Act> KeyActs();
std::span<const Act> MouseActs();
std::span<const Act> FieldActs();
std::span<const Act> CommandActs();
std::span<const Act> DesktopActs();
