// The commands that fill a document with a whole page: the default skeleton and the user's own template.
#pragma once

#include <QString>

class Frame;

/// Registers mnuDefault, mnuUserTemplate and mnuSetUserTemplate.
void FillSkeletonCommands(Frame& frame);

/// The default page; version is the dotted one ("3.0.6"). CR LF between its lines, none at its end.
QString DefaultSkeleton(const QString& version);

/// Replaces the active document's text with the default page; asks first if there is any.
void mnuDefault_Click(Frame& frame);
/// Replaces the active document's text with the user's template; asks first if there is any.
void mnuUserTemplate_Click(Frame& frame);
/// Keeps the active document's text as the user's template.
void mnuSetUserTemplate_Click(Frame& frame);
