// Precompiled for development builds only; every source includes what it uses.
#pragma once
#include <QtWidgets/QtWidgets>
#include <functional>
#include <memory>
#include <optional>
#include <vector>
