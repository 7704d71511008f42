// Loads the plugin with the browser and design controls, if it is installed.
#pragma once

#include <QStringList>

struct WebControls;
class WebControlsFactory;

/// Lets the documents of a frame have its controls. Nothing is loaded until a document asks; without the
/// plugin they do without.
void UseWebPlugin(WebControls& controls);

/// The plugin of the first of the folders that holds one that can be loaded; null where none does. A plugin
/// that was loaded stays to the end of the program.
WebControlsFactory* LoadWebPlugin(const QStringList& folders);

/// Where an installed program, and one in its build folder, has the plugin.
QStringList WebPluginFolders();
