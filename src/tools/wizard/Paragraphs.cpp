#include "tools/wizard/Paragraphs.h"

void Paragraphs::Add(const QString& text) {
    items_ << (text.isEmpty() ? QString() : QStringLiteral("<H3>") + text + QStringLiteral("</H3>\r\n\r\n"));
}
