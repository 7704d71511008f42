// The class of a layer on its way into a document.
#pragma once

#include <QString>

class Frame;

enum class ClassPlace {
    Selection, ///< over the selection
    HeadEnd    ///< over "</HEAD>", or where there is none over the seven characters from the caret
};

/// Writes the text of a class, plain. Without a document nothing happens.
void InsertClass(Frame& frame, const QString& text, ClassPlace place);
