// The setting ColoredTags, which is read in two ways: they differ for a stored number other than 0 and 1.
#include "editor/color/ColoredTags.h"

#include "platform/store/Settings.h"

bool WritesColored(const Settings& store) {
    return store.ReadNumber(Keys::ColoredTags) != 0;
}

bool ColoredTagsChecked(const Settings& store) {
    return store.ReadFlag(Keys::ColoredTags);
}
