// The paragraphs that the wizard collects.
#pragma once

#include <QString>
#include <QStringList>

/// Each text is marked up as a third-level heading; an empty one adds an empty item.
class Paragraphs {
  public:
    void Add(const QString& text);
    /// All of them in their order, each with an empty line behind it.
    QString Text() const { return items_.join(QString()); }

  private:
    QStringList items_;
};
