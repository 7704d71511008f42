#include "platform/values/CharacterSet.h"

#include "platform/values/Cp1252.h"

QString HeldBy(CharacterSet characters, const QString& text) {
    return characters == CharacterSet::Unicode ? text : Cp1252::Accept(text);
}
