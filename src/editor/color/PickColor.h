// Asking the user for a colour.
#pragma once

#include "platform/text/ColorNumber.h"

#include <optional>

class Prompts;
class QWidget;

/// Shows the colour dialog; nothing on Cancel. Custom colours do not outlive a call.
std::optional<ColorNumber> PickColor(Prompts& ask, QWidget* owner);

/// The same for those to whom a cancelled dialog means black.
ColorNumber PickColorOrBlack(Prompts& ask, QWidget* owner);
