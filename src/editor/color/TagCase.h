// The case in which the words of tags are written.
#pragma once

#include <QString>

class Settings;

enum class TagCase { AsWritten, Lower };

/// What the setting LowerCaseTags asks for now: Lower where its numeric value is exactly 1.
TagCase TagCaseOf(const Settings& store);

/// A tag's words in that case.
QString InCase(const QString& words, TagCase tagCase);
