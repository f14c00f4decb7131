#pragma once

class QWidget;

/// Opens the dialog of a view and prints what was asked for.
void runDialog(QWidget * view);
/// The same without a person: types into the dialog and prints what it makes of it.
void runDemo(QWidget * view);
