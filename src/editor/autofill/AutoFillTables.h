// The rows of the auto-fill lists: what each tag's attributes are, and what colours and alignments there are.
#pragma once

#include <QList>
#include <QString>

/// A row shows Text; Key is what is written into the document.
struct AutoFillRow {
    QString Key;
    QString Text;
    int Icon = 1;      ///< index of a picture of ImageList1
    int SmallIcon = 1; ///< the picture that the list shows; it differs from Icon in one row
};

using AutoFillRows = QList<AutoFillRow>;

// Attributes of a tag, in the order of the list. Most keys are the name and `=""`; where a key is the name
// and `""`, or the name alone, it is meant.
AutoFillRows ListImgAttributes();
AutoFillRows ListAAttributes();
AutoFillRows ListBodyAttributes();
AutoFillRows ListBlockAttributes(); ///< of DIV and P
AutoFillRows ListFontAttributes();
AutoFillRows ListFormAttributes();
AutoFillRows ListFrameAttributes();
AutoFillRows ListFramesetAttributes();
AutoFillRows ListParamAttributes();
AutoFillRows ListTableAttributes();
AutoFillRows ListCellAttributes(); ///< of TD and TH
AutoFillRows ListRowAttributes();  ///< of TR

// Values of an attribute.
AutoFillRows ListColorValues();
AutoFillRows ListAlignValues();

/// The attributes of a tag, by its name in lower case; empty for a tag that has no list.
AutoFillRows AttributeRows(const QString& tag);
/// The values of an attribute, by its name in lower case; empty for an attribute that has no list.
AutoFillRows ValueRows(const QString& attribute);
