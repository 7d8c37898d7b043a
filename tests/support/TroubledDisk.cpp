#if defined(__linux__) && defined(__x86_64__)

#include "support/TroubledDisk.h"

#include <fcntl.h>
#include <sys/ptrace.h>
#include <sys/syscall.h>
#include <sys/uio.h>
#include <sys/user.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <climits>
#include <csignal>
#include <cstdint>
#include <cstdlib>
#include <optional>
#include <stdexcept>

namespace tarnwick::test {
namespace {

namespace fs = std::filesystem;

constexpr unsigned PatienceSeconds = 60;
constexpr int WorkFailed = 70, NotToBeTraced = 71;  // exit codes

/// How an operation says what it is about.
enum class About {
  Path,      // the first argument
  PathAt,    // the second one, seen from the folder of the first
  TwoPaths,  // from and to
  TwoAt,
  File,  // an open one
};

struct KnownCall {
  long Number;
  const char* Name;
  About Is;
};

constexpr KnownCall KnownCalls[] = {
    {SYS_open, "open", About::Path},
    {SYS_openat, "open", About::PathAt},
    {SYS_creat, "open", About::Path},
    {SYS_stat, "stat", About::Path},
    {SYS_lstat, "stat", About::Path},
    {SYS_newfstatat, "stat", About::PathAt},
    {SYS_statx, "stat", About::PathAt},
    {SYS_access, "access", About::Path},
    {SYS_faccessat, "access", About::PathAt},
    {SYS_readlink, "readlink", About::Path},
    {SYS_readlinkat, "readlink", About::PathAt},
    {SYS_unlink, "unlink", About::Path},
    {SYS_unlinkat, "unlink", About::PathAt},
    {SYS_rmdir, "rmdir", About::Path},
    {SYS_mkdir, "mkdir", About::Path},
    {SYS_mkdirat, "mkdir", About::PathAt},
    {SYS_chmod, "chmod", About::Path},
    {SYS_fchmodat, "chmod", About::PathAt},
    {SYS_rename, "rename", About::TwoPaths},
    {SYS_renameat, "rename", About::TwoAt},
    {SYS_renameat2, "rename", About::TwoAt},
    {SYS_read, "read", About::File},
    {SYS_pread64, "read", About::File},
    {SYS_write, "write", About::File},
    {SYS_pwrite64, "write", About::File},
    {SYS_writev, "write", About::File},
    {SYS_close, "close", About::File},
    {SYS_fstat, "fstat", About::File},
    {SYS_fsync, "fsync", About::File},
    {SYS_fdatasync, "fsync", About::File},
    {SYS_ftruncate, "truncate", About::File},
    {SYS_fchmod, "chmod", About::File},
    {SYS_flock, "flock", About::File},
    {SYS_getdents64, "list", About::File},
};

using Registers = user_regs_struct;

struct Operation {
  std::string Name, Path;
  [[nodiscard]] std::string Text() const { return Name + ' ' + Path; }
};

/// The stopped process, as far as it matters here.
class Stopped {
 public:
  Stopped(pid_t id, const fs::path& folder) : id_(id), folder_(fs::canonical(folder)) {}

  [[nodiscard]] Registers Read() const {
    Registers registers{};
    ptrace(PTRACE_GETREGS, id_, nullptr, &registers);
    return registers;
  }
  void Write(const Registers& registers) const { ptrace(PTRACE_SETREGS, id_, nullptr, &registers); }

  /// What it is about to ask of the kernel; nothing when that is not about the folder.
  [[nodiscard]] std::optional<Operation> Asked(const Registers& r) const {
    const auto* call = std::find_if(std::begin(KnownCalls), std::end(KnownCalls), [&r](const KnownCall& c) {
      return c.Number == static_cast<long>(r.orig_rax);
    });
    if (call == std::end(KnownCalls)) return {};
    for (const std::string& path : PathsOf(call->Is, r)) {
      if (path == folder_) return Operation{call->Name, "."};
      if (path.starts_with(folder_ + '/')) return Operation{call->Name, path.substr(folder_.size() + 1)};
    }
    return {};
  }

 private:
  [[nodiscard]] std::vector<std::string> PathsOf(About about, const Registers& r) const {
    switch (about) {
      case About::Path:
        return {PathAt(AT_FDCWD, r.rdi)};
      case About::PathAt:
        return {PathAt(static_cast<int>(r.rdi), r.rsi)};
      case About::TwoPaths:
        return {PathAt(AT_FDCWD, r.rdi), PathAt(AT_FDCWD, r.rsi)};
      case About::TwoAt:
        return {PathAt(static_cast<int>(r.rdi), r.rsi), PathAt(static_cast<int>(r.rdx), r.r10)};
      case About::File:
        return {Link("fd/" + std::to_string(static_cast<int>(r.rdi)))};
    }
    return {};
  }

  [[nodiscard]] std::string PathAt(int folder, std::uint64_t address) const {
    const std::string path = TextAt(address);
    if (path.starts_with('/')) return path;
    const std::string from = Link(folder == AT_FDCWD ? "cwd" : "fd/" + std::to_string(folder));
    return path.empty() ? from : from + '/' + path;
  }

  /// What a link among those of the process leads to.
  [[nodiscard]] std::string Link(const std::string& name) const {
    const std::string path = "/proc/" + std::to_string(id_) + '/' + name;
    char target[PATH_MAX];
    const ssize_t size = readlink(path.c_str(), target, sizeof target);
    std::string text(target, size > 0 ? static_cast<std::size_t>(size) : 0);
    constexpr std::string_view removed = " (deleted)";
    if (text.ends_with(removed)) text.resize(text.size() - removed.size());
    return text;
  }

  /// The text in its memory, up to the zero. Never over the border of a page in one go: the next one need
  /// not be there.
  [[nodiscard]] std::string TextAt(std::uint64_t address) const {
    constexpr std::size_t piece = 256;
    std::string text;
    while (text.size() < PATH_MAX) {
      char bytes[piece];
      const std::size_t size = piece - address % piece;
      const iovec here{bytes, size};
      const iovec there{reinterpret_cast<void*>(address), size};  // NOLINT: an address over there
      if (process_vm_readv(id_, &here, 1, &there, 1, 0) != static_cast<ssize_t>(size)) return {};
      char* const end = std::find(bytes, bytes + size, '\0');
      text.append(bytes, end);
      if (end != bytes + size) break;
      address += size;
    }
    return text;
  }

  pid_t id_;
  std::string folder_;
};

/// Whether an operation takes room on the disk.
bool TakesRoom(const Operation& operation, const Registers& r) {
  if (operation.Name == "open") {
    const auto flags = static_cast<int>(r.orig_rax == SYS_openat ? r.rdx : r.rsi);
    return r.orig_rax == SYS_creat || (flags & O_CREAT) != 0;
  }
  return operation.Name == "write" || operation.Name == "mkdir" || operation.Name == "fsync";
}

/// The number of a failure that such an operation may well have.
int LikelyFailure(const std::string& name) {
  const bool isOfTheMedium = name == "read" || name == "write" || name == "close" || name == "fsync" ||
                             name == "list" || name == "fstat";
  return isOfTheMedium ? EIO : EACCES;
}

/// Goes along with a process from one operation to the next.
class Overseer {
 public:
  Overseer(pid_t id, const fs::path& folder, Trouble trouble)
      : id_(id), process_(id, folder), trouble_(trouble) {}

  TroubledRun Run() {
    waitpid(id_, &run_.Status, 0);  // it has prepared everything, and waits
    ptrace(PTRACE_SETOPTIONS, id_, nullptr, PTRACE_O_TRACESYSGOOD | PTRACE_O_TRACEEXEC | PTRACE_O_EXITKILL);
    int signal = 0;
    while (!IsOver()) {
      ptrace(PTRACE_SYSCALL, id_, nullptr, signal);
      waitpid(id_, &run_.Status, 0);
      if (!IsOver()) signal = Stop(WSTOPSIG(run_.Status));
    }
    return std::move(run_);
  }

 private:
  [[nodiscard]] bool IsOver() const { return WIFEXITED(run_.Status) || WIFSIGNALED(run_.Status); }

  /// @return the signal that the process is to get
  int Stop(int signal) {
    constexpr int call = SIGTRAP | 0x80;
    if (signal == SIGTRAP) return 0;  // it has become another program
    if (signal != call) return signal;
    inCall_ = !inCall_;
    if (inCall_)
      Enter();
    else
      Leave();
    return 0;
  }

  void Enter() {
    Registers registers = process_.Read();
    const std::optional<Operation> operation = process_.Asked(registers);
    if (!operation) return;
    run_.Operations.push_back(operation->Text());
    const std::size_t number = run_.Operations.size();
    switch (trouble_.Is) {
      case Trouble::Kind::None:
        return;
      case Trouble::Kind::Fails:
        if (number == trouble_.At) Fail(*operation, registers, LikelyFailure(operation->Name));
        return;
      case Trouble::Kind::DiskFull:
        if (number >= trouble_.At && TakesRoom(*operation, registers)) FillDisk(*operation, registers);
        return;
      case Trouble::Kind::Dies:
        if (number < trouble_.At) return;
        run_.MetAt = number;
        kill(id_, SIGKILL);
        return;
    }
  }

  void FillDisk(const Operation& operation, Registers& registers) {
    const bool isFirst = run_.MetAt == 0;
    const bool isPlainWrite = registers.orig_rax == SYS_write || registers.orig_rax == SYS_pwrite64;
    if (isFirst && isPlainWrite && registers.rdx > 1) {
      run_.MetAt = run_.Operations.size();
      registers.rdx /= 2;  // bytes
      process_.Write(registers);
      return;
    }
    Fail(operation, registers, ENOSPC);
  }

  /// The kernel does nothing, and the program hears of it. But a file that fails to close is closed.
  void Fail(const Operation& operation, Registers& registers, int number) {
    if (run_.MetAt == 0) run_.MetAt = run_.Operations.size();
    answer_ = -number;
    if (operation.Name == "close") return;
    registers.orig_rax = static_cast<unsigned long long>(-1);
    process_.Write(registers);
  }

  void Leave() {
    if (answer_ == 0) return;
    Registers registers = process_.Read();
    registers.rax = static_cast<unsigned long long>(answer_);
    process_.Write(registers);
    answer_ = 0;
  }

  pid_t id_;
  Stopped process_;
  Trouble trouble_;
  TroubledRun run_;
  bool inCall_ = false;
  long answer_ = 0;  // of the call in hand, in place of its own
};

[[noreturn]] void Work(const TroubledWork& prepare, int answer) {
  alarm(PatienceSeconds);
  try {
    const std::function<std::string()> work = prepare();
    if (ptrace(PTRACE_TRACEME, 0, nullptr, nullptr) != 0) _exit(NotToBeTraced);
    raise(SIGSTOP);
    const std::string told = work();
    _exit(write(answer, told.data(), told.size()) == static_cast<ssize_t>(told.size()) ? 0 : 1);
  } catch (...) {
    _exit(WorkFailed);
  }
}

std::string ReadAll(int file) {
  std::string text;
  char bytes[4096];
  for (ssize_t size = 0; (size = read(file, bytes, sizeof bytes)) > 0;) {
    text.append(bytes, static_cast<std::size_t>(size));
  }
  return text;
}

}  // namespace

bool TroubledRun::Ended() const { return WIFEXITED(Status); }
bool TroubledRun::WasKilled() const { return WIFSIGNALED(Status) && WTERMSIG(Status) == SIGKILL; }
int TroubledRun::ExitCode() const { return WEXITSTATUS(Status); }

TroubledRun RunTroubled(const fs::path& folder, Trouble trouble, const TroubledWork& prepare) {
  int answer[2];
  if (pipe2(answer, O_CLOEXEC) != 0) throw std::runtime_error("no pipe");
  const pid_t id = fork();
  if (id < 0) throw std::runtime_error("no process");
  if (id == 0) Work(prepare, answer[1]);
  close(answer[1]);
  TroubledRun run = Overseer(id, folder, trouble).Run();
  run.Told = ReadAll(answer[0]);
  close(answer[0]);
  if (run.Ended() && run.ExitCode() == NotToBeTraced) throw std::runtime_error("processes cannot be traced");
  if (run.Ended() && run.ExitCode() == WorkFailed) throw std::runtime_error("an exception left the work");
  return run;
}

TroubledWork OtherProgram(std::vector<std::string> command, fs::path out, fs::path err) {
  return [=] {
    for (const auto& [file, path] : {std::pair(STDOUT_FILENO, out), std::pair(STDERR_FILENO, err)}) {
      dup2(open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, S_IRUSR | S_IWUSR), file);
    }
    setenv("ASAN_OPTIONS", "detect_leaks=0", 1);  // which is looked for in the way that is used here
    return std::function<std::string()>([command]() mutable -> std::string {
      std::vector<char*> arguments;
      for (std::string& argument : command) arguments.push_back(argument.data());
      arguments.push_back(nullptr);
      execv(arguments.front(), arguments.data());
      throw std::runtime_error("no such program");
    });
  };
}

}  // namespace tarnwick::test

#endif
