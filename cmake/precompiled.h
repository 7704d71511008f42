// What nearly every source needs of Qt and the standard library, read once. Kept lean: a source includes what
// it uses all the same, and a header that few include would cost each source more than it saves.
#pragma once

#include <algorithm>
#include <array>
#include <functional>
#include <memory>
#include <optional>
#include <QByteArray>
#include <QHash>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QTimer>
#include <QVector>
#include <QWidget>
#include <utility>
#include <vector>
