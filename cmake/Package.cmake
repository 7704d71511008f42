# What ./package makes: the program, and the browser and design views in a package of their own, which most people want and
# which brings a whole browser engine.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME tarnwick)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_VENDOR "The Tarnwick")
set(CPACK_PACKAGE_CONTACT "The Tarnwick's founders <founders@tarnwick.example>")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_ALL tarnwick)
if(TARGET tarnwick_web)
  list(APPEND CPACK_COMPONENTS_ALL tarnwick-web)
endif()
set(CPACK_COMPONENTS_GROUPING ONE_PER_GROUP)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SECTION web)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)

set(CPACK_DEBIAN_TARNWICK_PACKAGE_NAME tarnwick)
# The preview of a page goes through the desktop's own choice of a browser where the user made none.
set(CPACK_DEBIAN_TARNWICK_PACKAGE_DEPENDS sensible-utils)
set(CPACK_DEBIAN_TARNWICK_PACKAGE_RECOMMENDS "tarnwick-web, hunspell-en-us")
set(CPACK_COMPONENT_TARNWICK_DESCRIPTION "editor for HTML source with dialogs for every tag
Any number of pages stand open at once, and their tags show in colour.
Menus, a toolbar, buttons of your own and some twenty dialogs write the
tags: body attributes, links, images, tables, forms, frames, lists, fonts,
style sheets and layers. With the caret inside a tag its dialog comes back.
.
Beside the editor there are find and replace over many files, a spell check
that skips tags, projects and their upload, a tree of a page's links, a
wizard for a first page, printing and a timer.")
set(CPACK_DEBIAN_TARNWICK-WEB_PACKAGE_NAME tarnwick-web)
set(CPACK_DEBIAN_TARNWICK-WEB_PACKAGE_DEPENDS "tarnwick (= ${PROJECT_VERSION})")
set(CPACK_COMPONENT_TARNWICK-WEB_DESCRIPTION "browser and design views for the HTML editor The Tarnwick
With this plugin each page can be looked at as a browser shows it, and edited
as it looks, inside the editor's own window.")
include(CPack)
