// Reads drawings with dxflib, a reader that shares nothing with our writer, and prints for each file
//
//   FILE LINE=n ARC=n CIRCLE=n SOLID=n TEXT=n
//
// Exit code 1 when a file cannot be read.

#include <dxflib/dl_creationadapter.h>
#include <dxflib/dl_dxf.h>

#include <iostream>
#include <span>

namespace {

class Counter : public DL_CreationAdapter {
 public:
  int Lines{}, Arcs{}, Circles{}, Solids{}, Texts{};

  void addLine(const DL_LineData&) override { ++Lines; }
  void addArc(const DL_ArcData&) override { ++Arcs; }
  void addCircle(const DL_CircleData&) override { ++Circles; }
  void addSolid(const DL_SolidData&) override { ++Solids; }
  void addText(const DL_TextData&) override { ++Texts; }
};

bool Report(const char* file) {
  Counter seen;
  if (!DL_Dxf().in(file, &seen)) {
    std::cerr << file << ": cannot be read\n";
    return false;
  }
  std::cout << file << " LINE=" << seen.Lines << " ARC=" << seen.Arcs << " CIRCLE=" << seen.Circles
            << " SOLID=" << seen.Solids << " TEXT=" << seen.Texts << '\n';
  return true;
}

}  // namespace

int main(int argc, char** argv) {
  bool good = argc > 1;
  for (const char* file : std::span(argv, static_cast<std::size_t>(argc)).subspan(1)) good &= Report(file);
  return good ? 0 : 1;
}
