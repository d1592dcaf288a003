#pragma once

class QString;
class QWidget;

/// Tells in the tool tip, and to screen readers, what a control does.
void explain(QWidget& widget, const QString& text);
