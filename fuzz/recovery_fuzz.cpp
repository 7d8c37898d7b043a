// Any bytes as what a crash has left. A copy that is none is passed over and stays as it is; one that is
// whole comes up, when it is wanted, as the design that it holds; and after that nothing is left of it.

#include "shell/Recovery.h"

#include <cstdint>
#include <optional>
#include <string>

#include "Demand.h"
#include "ScratchFolder.h"
#include "ShortBand.h"
#include "platform/CollectedMessages.h"
#include "store/modPath.h"
#include "store/modRecoveryCopy.h"
#include "store/modSave.h"

namespace {

using namespace tarnwick;
using fuzz::Demand;

const std::filesystem::path CopyName = "Tarnwick/recovery-0123456789abcdef.copy";

/// Somebody with one answer to everything.
class Decided final : public Messages {
 public:
  explicit Decided(Button answer) : answer_(answer) {}
  Button Show(const Box& box) override {
    if (box.Offer == Buttons::Ok) return Button::Ok;
    ++Asked;
    return answer_;
  }
  int Asked = 0;

 private:
  Button answer_;
};

/// The next start of the program, with that file among its own.
void StartWith(const fuzz::ScratchFolder& folder, const std::string& bytes) {
  const std::optional<RecoveryCopy> copy = ReadRecovery(bytes);
  const std::filesystem::path path = folder.Keep(CopyName, bytes);
  OpenDesign design;
  Recovery recovery(folder.Path());
  Decided no(Button::No), yes(Button::Yes);
  Demand(!recovery.Offer(design, no) && no.Asked == (copy ? 1 : 0));
  Demand(fuzz::BytesOf(path) == bytes);

  const bool recovered = Recovery(folder.Path()).Offer(design, yes);
  Demand(recovered == copy.has_value());
  if (!copy) {
    Demand(fuzz::BytesOf(path) == bytes);
    return;
  }
  Demand(design.FileName == copy->FileName && design.SawDir() == copy->Folder);

  Recovery last(folder.Path());
  Demand(last.Offer(design, yes));
  last.Note(design);
  last.End();
  Demand(std::filesystem::is_empty(path.parent_path()));
}

/// A copy that is whole, of a design of this folder: the folder of the copy is the program's to read from.
std::string HarmlessCopy(RecoveryCopy copy, const fuzz::ScratchFolder& folder) {
  for (char& c : copy.FileName)
    if (c == PathSeparator) c = '-';
  fuzz::KeepBandShort(copy.Saw);
  return RecoveryText(copy.FileName, PathText(folder.Path()) + PathSeparator, copy.Saw);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const fuzz::ScratchFolder folder("recovery");
  const std::string bytes(data, data + size);

  // As it stands; next to no bytes bear their own checksum.
  const std::optional<RecoveryCopy> copy = ReadRecovery(bytes);
  if (!copy) StartWith(folder, bytes);
  // Sealed anew: what begins like the content of a copy.
  constexpr std::size_t mostOfName = 40;
  const std::size_t name = size > 0 ? data[0] % mostOfName : 0;
  const BandSawBytes design = ReadBandSaw(std::string_view(bytes).substr(std::min(size, 1 + name)));
  RecoveryCopy made{bytes.substr(std::min<std::size_t>(size, 1), name), "", design.Saw};
  const std::string sealed = HarmlessCopy(copy ? *copy : made, folder);
  const std::optional<RecoveryCopy> read = ReadRecovery(sealed);
  Demand(read && RecoveryText(read->FileName, read->Folder, read->Saw) == sealed);
  StartWith(folder, sealed);

  // One byte that changed on the disk.
  std::string damaged = sealed;
  damaged[size % damaged.size()] ^= 0x10;
  Demand(!ReadRecovery(damaged));
  return 0;
}
