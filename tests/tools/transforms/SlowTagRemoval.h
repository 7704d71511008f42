// Remove Tags as it is told, one tag at a time in the control: what the command does at once must give this.
#pragma once

#include "platform/text/RichTextBox.h"

/// Selects a stretch; false where it has no place or no length, which ends the removal.
inline bool SelectTag(RichTextBox& box, int p, int q) {
    if (p < 0)
        return false;
    box.SetSelStart(p);
    if (q - p + 1 <= 0)
        return false;
    box.SetSelLength(q - p + 1);
    return true;
}

inline void RemoveTagsSlowly(RichTextBox& box) {
    if (box.SelLength() > 0) {
        int p = box.SelStart();
        int q = p;
        for (int end = p + box.SelLength(); p < end;) {
            p = box.Find(QStringLiteral("<"), p);
            q = box.Find(QStringLiteral(">"), q);
            if (p >= end || q >= end || !SelectTag(box, p, q))
                return;
            end -= box.SelLength();
            box.SetSelText(QString());
        }
        return;
    }
    for (int p = 0; p >= 0;) {
        p = box.Find(QStringLiteral("<"), 0);
        const int q = box.Find(QStringLiteral(">"), 0);
        if (!SelectTag(box, p, q))
            return;
        box.SetSelText(QString());
    }
}
