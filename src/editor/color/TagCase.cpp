#include "editor/color/TagCase.h"

#include "platform/store/Settings.h"

TagCase TagCaseOf(const Settings& store) {
    return store.ReadFlag(Keys::LowerCaseTags) ? TagCase::Lower : TagCase::AsWritten;
}

QString InCase(const QString& words, TagCase tagCase) {
    return tagCase == TagCase::Lower ? words.toLower() : words;
}
