#include "shell/Recovery.h"

#include <algorithm>
#include <cstdio>
#include <optional>
#include <random>
#include <set>
#include <system_error>
#include <utility>

#include "geometry/modTooth.h"
#include "platform/CollectedMessages.h"
#include "store/modFiles.h"
#include "store/modPath.h"
#include "store/modRecoveryCopy.h"
#include "store/modReg.h"
#include "store/modSave.h"

namespace tarnwick {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view Prefix = "recovery-";
constexpr std::string_view Digits = "0123456789abcdef";
constexpr std::size_t NameSize = Prefix.size() + 16;

constexpr std::size_t LargestCopy = 1 << 20;

Box RecoveryQuestion() {
  return {.Title = "Recovery",
          .Text = "A design was open when the program ended unexpectedly.\nDo you wish to recover it?",
          .Offer = Buttons::YesNo,
          .Shown = Icon::Question,
          .Default = Button::Yes};
}

fs::path NewName() {
  std::random_device random;
  std::string name(Prefix);
  while (name.size() < NameSize) name += Digits[random() % Digits.size()];
  return name;
}

/// The name that a file belongs to; empty when it is nobody's.
fs::path NameOf(const fs::path& file) {
  const fs::path last = file.filename();
  const auto& text = last.native();
  if (text.size() <= NameSize || text[NameSize] != '.') return {};
  const auto digits = text.begin() + Prefix.size();
  const auto end = text.begin() + NameSize;
  const bool ours =
      std::equal(Prefix.begin(), Prefix.end(), text.begin()) && std::all_of(digits, end, [](auto c) {
        return std::find(Digits.begin(), Digits.end(), c) != Digits.end();
      });
  return ours ? fs::path(text.begin(), end) : fs::path();
}

std::vector<fs::path> FilesIn(const fs::path& folder) {
  std::vector<fs::path> files;
  std::error_code failed;
  for (fs::directory_iterator i(folder, failed); !failed && i != fs::directory_iterator();
       i.increment(failed)) {
    files.push_back(i->path());
  }
  return files;
}

bool IsRegularFile(const fs::path& path) {
  std::error_code ignored;
  return fs::symlink_status(path, ignored).type() == fs::file_type::regular;
}

/// Makes the folder if need be. Nobody else is to read designs in it.
void MakePrivate(const fs::path& folder) {
  std::error_code ignored;
  if (fs::create_directories(folder, ignored)) fs::permissions(folder, fs::perms::owner_all, ignored);
}

/// The design as its file would come up now; the blank one when there is no such file any more.
BandSaw SavedState(const OpenDesign& design) {
  const fs::path file = FilePath(design.SawDir() + design.FileName);
  BandSaw saved;
  saved.ImpMetric = design.Settings.MainImpMetric;
  CollectedMessages unseen;  // the file is not what the user is looking at
  if (FileExists(file) && OpenBandSaw(saved, file, unseen)) {
    static_cast<void>(CalculateSaw(saved, design.Settings.Calculation, unseen));
  }
  return saved;
}

void Restore(const RecoveryCopy& copy, OpenDesign& design, Messages& messages) {
  design.FileName = copy.FileName;
  design.Settings.CurrentSawDir = copy.Folder;
  design.Saw = copy.Saw;
  design.ImpMetric = copy.Saw.ImpMetric;
  design.Recalculate(messages);
  design.ViewOneToOne();
  design.SawEdit = design.Saw;
  design.SawSaved = SavedState(design);
}

}  // namespace

Recovery::Recovery(const fs::path& stateFolder) {
  if (!stateFolder.empty()) folder_ = stateFolder / ApplicationKey;
}

fs::path Recovery::CopyOf(const fs::path& name) const { return folder_ / (name.string() + ".copy"); }
fs::path Recovery::LockOf(const fs::path& name) const { return folder_ / (name.string() + ".lock"); }

void Recovery::Note(const OpenDesign& design) {
  if (folder_.empty()) return;
  if (SameSaw(design.Saw, design.SawSaved)) {
    RemoveOwnCopy();
    return;
  }
  std::string now = RecoveryText(design.FileName, design.SawDir(), design.Saw);
  if (now == noted_) return;
  noted_ = std::move(now);
  // A failure is nobody's concern: the design is at hand, and the older copy is better than none.
  if (lock_.Held() || TakeOwnName()) static_cast<void>(ReplaceWholeFile(CopyOf(own_), noted_));
}

void Recovery::Saved(const OpenDesign& design) {
  Note(design);
  RemoveDeclined();
}

bool Recovery::Offer(OpenDesign& design, Messages& messages) {
  for (const fs::path& name : LatestFirst()) {
    FileLock lock;
    if (!lock.Take(LockOf(name))) continue;  // its program is running
    std::string bytes = ReadCopy(name);
    const std::optional<RecoveryCopy> copy = ReadRecovery(bytes);
    if (!copy) {
      std::error_code ignored;
      // A program that ended with its design saved leaves a lock at most. What is no copy is left alone.
      if (fs::symlink_status(CopyOf(name), ignored).type() == fs::file_type::not_found) Remove(name, lock);
    } else if (messages.Show(RecoveryQuestion()) == Button::Yes) {
      Restore(*copy, design, messages);
      End();
      own_ = name;  // its copy is this program's from now on, so that it is safe without a gap
      lock_ = std::move(lock);
      noted_ = std::move(bytes);
      return true;
    } else {
      declined_[name] = std::move(bytes);
    }
  }
  return false;
}

void Recovery::End() {
  noted_.clear();
  if (lock_.Held()) Remove(own_, lock_);
}

/// Names of all files here, that of the latest copy first; names without a copy come last.
Recovery::Names Recovery::LatestFirst() const {
  std::set<fs::path> names;
  for (const fs::path& file : FilesIn(folder_)) names.insert(NameOf(file));
  names.erase(fs::path());
  std::vector<std::pair<fs::file_time_type, fs::path>> byTime;
  for (const fs::path& name : names) {
    std::error_code none;
    const fs::file_time_type time = fs::last_write_time(CopyOf(name), none);
    byTime.emplace_back(none ? fs::file_time_type::min() : time, name);
  }
  std::sort(byTime.rbegin(), byTime.rend());
  Names sorted;
  for (auto& [time, name] : byTime) sorted.push_back(std::move(name));
  return sorted;
}

/// The bytes of a copy; none when there is no such file.
std::string Recovery::ReadCopy(const fs::path& name) const {
  const fs::path copy = CopyOf(name);
  return IsRegularFile(copy) ? ReadFile(copy, LargestCopy).Bytes : std::string();
}

bool Recovery::TakeOwnName() {
  MakePrivate(folder_);
  constexpr int tries = 3;  // a program that starts just now may look whether the new lock is free
  for (int i = 0; i < tries; ++i) {
    own_ = NewName();
    if (lock_.Take(LockOf(own_))) return true;
  }
  return false;
}

void Recovery::RemoveOwnCopy() {
  if (noted_.empty()) return;
  noted_.clear();
  std::error_code ignored;
  if (lock_.Held()) fs::remove(CopyOf(own_), ignored);
}

/// Removes all files of a name, its lock last. A write that was cut short may have left more than a copy.
void Recovery::Remove(const fs::path& name, FileLock& lock) const {
  std::error_code ignored;
  for (const fs::path& file : FilesIn(folder_)) {
    if (NameOf(file) == name && file != LockOf(name) && IsRegularFile(file)) fs::remove(file, ignored);
  }
  lock.ReleaseAndRemove();
}

/// A copy that has become another program's since, or that has changed in its hands, is not what was
/// declined.
void Recovery::RemoveDeclined() {
  for (const auto& [name, bytes] : std::exchange(declined_, {})) {
    FileLock lock;
    if (!lock.Take(LockOf(name))) continue;
    const std::string now = ReadCopy(name);
    if (now == bytes || now.empty()) Remove(name, lock);
  }
}

}  // namespace tarnwick
