// The page that shows the style being built.
#pragma once

#include <QString>

/// A piece of HTML that shows an element: "<H1>Style H1</H1>". Empty for one that the builder does not start
/// with, such as a class.
QString StyleSample(const QString& element);

/// The page with a rule and the sample of an element, as one line without a line end.
QString PreviewPage(const QString& element, const QString& rule);
