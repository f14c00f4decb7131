#pragma once

class QWidget;

/// Opens the dialog of a view and prints the sizes entered.
void runDialog(QWidget * view);
/// The same unattended: types into the dialog and prints the results.
void runDemo(QWidget * view);
