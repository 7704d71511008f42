// The spelling control of the frame: what it keeps between the start of the program and its end.
#pragma once

#include <QObject>
#include <QString>

/// Works with two dictionaries, each told by the full path of its file. The frame gives it both as it loads
/// and takes them back as it unloads; whether the files exist is seen only when they are used.
class SpellChecker final : public QObject {
    Q_OBJECT
    Q_PROPERTY(QString StandardDic MEMBER StandardDic)
    Q_PROPERTY(QString CustomDic MEMBER CustomDic)

  public:
    using QObject::QObject;

    QString StandardDic;
    QString CustomDic; ///< the words that the user has added
};
