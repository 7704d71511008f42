// The character entities that matter to spelling: letters, apostrophes, and what parts words or joins them.
#pragma once

#include <QString>

/// The character of an entity by its name ("eacute", upper and lower case differ); 0 for an unknown name.
char32_t CodeOfEntity(QStringView name);

/// A character as an entity, "&eacute;", or as its decimal reference where it has no name.
QString EntityFor(char32_t code);
