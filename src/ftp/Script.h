// The script that the client works off: who logs in, and what is done then.
#pragma once

#include <QByteArrayView>
#include <QString>
#include <QStringList>

struct Script {
    QString user;
    QString password;
    QStringList commands; ///< a line each, as they stand
};

/// The first two lines are user and password, the others commands. Lines end with CR LF or LF; the last one
/// needs no end. What is missing is empty.
Script ReadScript(QByteArrayView bytes);
