// The setting ColoredTags, which is read in two ways: they differ for a stored number other than 0 and 1.
#pragma once

class Settings;

/// Whether what is written into a document is coloured: any number but 0.
bool WritesColored(const Settings& store);

/// Whether the option's box is checked: exactly 1. Files that are opened and comments go by this one.
bool ColoredTagsChecked(const Settings& store);
