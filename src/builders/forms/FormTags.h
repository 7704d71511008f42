// What the Form dialog computes: the elements of an HTML form from their fields.
#pragma once

#include "dialogs/TagPair.h"
#include "editor/color/TagCase.h"

#include <QStringList>

struct FormFields {
    QString action{};
    QString target{};
    QString method{};
    QString encType{};
};

/// The end tag keeps its upper case.
TagPair FormTag(const FormFields& fields, TagCase tagCase);

struct TextFields {
    QString name{};
    QString value{};
    QString size{};
    QString maxLength{};
    QString align{};
    QString tabIndex{};
    bool noTab = false;
};

/// type is "TEXT" or "PASSWORD"; a type is a value and keeps its case.
QString TextTag(const QString& type, const TextFields& fields, TagCase tagCase);

struct TextAreaFields {
    QString name{};
    QString cols{};
    QString rows{};
    QString wrap{};
    QString tabIndex{};
    bool noTab = false;
};

/// The end tag keeps its upper case.
TagPair TextAreaTag(const TextAreaFields& fields, TagCase tagCase);

struct RadioFields {
    QString name{};
    QString value{};
    QString align{};
    bool checked = false;
    QString tabIndex{};
    bool noTab = false;
};

/// type is "RADIO" or "CHECKBOX".
QString RadioTag(const QString& type, const RadioFields& fields, TagCase tagCase);

struct SubmitFields {
    QString name{};
    QString value{};
    QString align{};
    QString tabIndex{};
    bool noTab = false;
};

/// type is "SUBMIT", "RESET" or "BUTTON".
QString SubmitTag(const QString& type, const SubmitFields& fields, TagCase tagCase);

struct HiddenFields {
    QString name{};
    QString value{};
};

/// Alone among the inputs its type goes with the case of the tag words.
QString HiddenTag(const HiddenFields& fields, TagCase tagCase);

struct SelectFields {
    QString name{};
    bool multiple = false;
    QString size{}; ///< counts with multiple alone
    QStringList items{};
};

/// One item a line. An item of one blank is left out, and an empty item ends the list: those behind it are
/// not written.
TagPair SelectTag(const SelectFields& fields, TagCase tagCase);
