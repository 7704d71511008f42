// Keys that act on a list.
#pragma once

#include <functional>
#include <initializer_list>
#include <Qt>

class QListWidget;

/// Calls action when one of the keys goes down in a list, and keeps the key from the form's default button.
void OnListKeys(QListWidget* list, std::initializer_list<Qt::Key> keys, std::function<void()> action);
