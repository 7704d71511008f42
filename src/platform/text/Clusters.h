// Characters as a reader takes them: a letter with its marks, an emoji made of several.
#pragma once

class TextBuffer;
class TextEditing;

/// Where the cluster ends that a byte lies in or begins; the end of the text for its end. Looks at no more
/// than some hundred bytes around it.
int ClusterEnd(const TextBuffer& buffer, int byte);
/// Where that cluster begins: the byte itself, where it lies in none.
int ClusterStart(const TextBuffer& buffer, int byte);

enum class ClusterEdge { Start, End };

/// Moves a caret that stands inside a cluster to one of its edges. The other end of a selection stays.
void LeaveCluster(const TextBuffer& buffer, TextEditing& editing, ClusterEdge to);
