// The commands that live only in the toolbar, and the toolbar's roads to those of the menus.
#pragma once

#include "builders/lists/ListText.h"

#include <QString>

class Frame;

/// Registers the toolbar's commands "tb_<key>" that need no dialog of their own. Buttons that stand for a
/// menu command are forwarded to it, and so follow it when it comes later.
void FillToolbarCommands(Frame& frame);

/// A new document with its skeleton, or the user's template, that counts as unchanged.
void tb_new_Click(Frame& frame);
/// Wraps the selection, or an answer where there is none, in "<!-- " and " -->", in the colour of comments.
void tb_balloon_Click(Frame& frame);
/// Asks for a name and inserts an anchor of it.
void tb_anchor_Click(Frame& frame);
/// Asks for a description and keywords, and puts their tags behind "<HEAD>".
void tb_meta_Click(Frame& frame);
/// Shows the upload window, or starts the user's own upload program.
void tb_ftp_Click(Frame& frame);
/// Turns the selected lines into a list; with nothing selected shows the Lists dialog for a kind.
void tb_list_Click(Frame& frame, const QString& open, const QString& close, ListKind kind);
