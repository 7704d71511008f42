// A tag gets its colour when its ">" is typed.
#pragma once

class Document;
class Frame;

class TagCloser {
  public:
    TagCloser(Frame& frame, Document& document) : frame_(frame), document_(document) {}

    /// At a ">" writes the tag that it closes, coloured, that ">" included: KeyAscii is then 0. Where there
    /// is none to colour the key is typed as usual.
    void KeyPress(int& KeyAscii);

  private:
    bool CloseTag();

    Frame& frame_;
    Document& document_;
};
