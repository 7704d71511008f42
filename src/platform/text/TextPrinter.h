// Draws a text in its colours on pages.
#pragma once

#include <QFont>
#include <QRectF>
#include <QString>
#include <QTextLayout>
#include <QVector>

class QPainter;
class TextBuffer;
class TextColors;

class TextPrinter {
  public:
    TextPrinter(const TextBuffer& buffer, const TextColors& colors, const QFont& font)
        : buffer_(buffer), colors_(colors), font_(font) {}

    /// Draws the text from a character (from 0) into a page's rectangle in the painter's units, and returns
    /// the first character not drawn. With draw off only measures.
    int FormatRange(bool draw, QPainter& painter, const QRectF& page, int from) const;

  private:
    QVector<QTextLayout::FormatRange> Colors(int startByte, const QString& text) const;

    const TextBuffer& buffer_;
    const TextColors& colors_;
    QFont font_;
};
