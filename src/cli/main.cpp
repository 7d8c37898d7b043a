#include "cli/Commands.h"
#include "cli/WideArguments.h"

namespace {

int Run(int argc, const char* const* argv) { return tarnwick::cli::RunTool(argc, argv); }

}  // namespace

#ifdef _WIN32
int wmain(int argc, wchar_t** argv) { return tarnwick::cli::RunOnWide(argc, argv, Run); }
#else
int main(int argc, char** argv) { return Run(argc, argv); }
#endif
