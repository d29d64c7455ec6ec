#pragma once
// The Tools menu on the desktop: "Tests of Independence" (Form12), "Discrete Distributions"
// (Form20) and the "Evolutionary Calculator", which need no data file; and "The Coalescent"
// (frmArbolDLL) of "Coalescent Simulations".

namespace ovelt {

class MainWindow;

// Adds the menu handlers of the calculators.
void AddToolHandlers(MainWindow& window);

}  // namespace ovelt
