// A user button's own: its title and its two tags.
#pragma once

#include <QString>

struct UserButton {
    QString caption;
    QString first;
    QString second;
};
