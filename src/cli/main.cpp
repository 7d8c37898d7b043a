#include "cli/Commands.h"

int main(int argc, char** argv) { return tarnwick::cli::RunTool(argc, argv); }
