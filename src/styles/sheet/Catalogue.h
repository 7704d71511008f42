// What the style sheet builder offers: the elements, and the properties with their values.
#pragma once

#include <QStringList>
#include <span>

/// The elements that the builder starts with, in their order.
QStringList StyleElements();

/// A row of the property list; a row of neither prompt, values nor families heads a group.
struct PropertyRow {
    const char* name;        ///< as the list shows it and as it stands in a sheet, trailing blank included
    const char* prompt = ""; ///< asks for a value of the user's own when the row is selected
    const char* values = ""; ///< the fixed values, a blank between two
    const char* title = "";  ///< of the box that asks; empty where it is the name
    bool families = false;   ///< its values are the installed font families

    bool Asks() const { return *prompt != 0; }
    QString Title() const;
    QStringList Values() const;
};

/// The rows in their order.
std::span<const PropertyRow> PropertyCatalogue();

/// The first row of exactly that name, or null.
const PropertyRow* FindProperty(const QString& name);
