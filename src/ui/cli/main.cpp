#include <iostream>

#include "ui/cli/cli_app.h"

int main(int argc, char** argv) { return ovelt::RunCli(argc, argv, std::cout, std::cerr); }
