#include "editor/color/ColoredTags.h"

#include "platform/store/Settings.h"

bool WritesColored(const Settings& store) {
    return store.ReadNumber(Keys::ColoredTags) != 0;
}

bool ColoredTagsChecked(const Settings& store) {
    return store.ReadFlag(Keys::ColoredTags);
}
