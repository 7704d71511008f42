// Looks into the page that a control shows, and hurts it.
#pragma once

#include <QString>
#include <QVariant>

class QWebEnginePage;
class QWidget;

namespace Probe {

/// The page of a control; null while it is empty.
QWebEnginePage* Page(const QWidget& control);
/// What a script of ours gives in the page; invalid if no answer comes.
QVariant Run(const QWidget& control, const QString& script);
/// Waits until a script gives true. False where that never happens.
bool Until(const QWidget& control, const QString& script);
/// A text as JavaScript has it.
QString Quoted(const QString& text);
/// Gives what the page has set going the time to happen.
void Settle(const QWidget& control);
/// Ends the process that draws the page, and waits until the control is empty.
bool Kill(const QWidget& control);
/// The same, while something else waits.
void KillSoon(const QWidget& control);
/// Keeps the page busy for ever.
void Block(const QWidget& control);

} // namespace Probe
