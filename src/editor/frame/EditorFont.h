// The font of the documents' text, as the settings have it.
#pragma once

#include <QFont>

class Settings;

/// EditorFont in EditorFontSize points. A size that begins with a number is that number ("12pt" is 12), cut
/// to what can be drawn; one that is none, or not above 0, counts as never stored.
QFont StoredEditorFont(const Settings& store);
