#include "app/documents/EncodingNote.h"

#include "editor/frame/Document.h"
#include "editor/frame/Frame.h"

void TellEncoding(Frame& frame, const Document& document) {
    if (IsUtf8(document.Encoding()))
        frame.SetIdlePanel(QStringLiteral("UTF-8"));
}
