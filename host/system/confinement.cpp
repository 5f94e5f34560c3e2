#include "system/confinement.h"

#include <fcntl.h>
#include <linux/landlock.h>
#include <seccomp.h>
#include <sys/ioctl.h>
#include <sys/prctl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cerrno>
#include <cstdint>
#include <limits>
#include <memory>

namespace host {
namespace {

// Missing from Debian 12's headers; Landlock has it from its third version.
constexpr std::uint64_t kTruncate = 1ULL << 14;

constexpr std::uint64_t kReading =
    LANDLOCK_ACCESS_FS_READ_FILE | LANDLOCK_ACCESS_FS_READ_DIR;

constexpr std::uint64_t kWriting =
    LANDLOCK_ACCESS_FS_WRITE_FILE | LANDLOCK_ACCESS_FS_REMOVE_DIR |
    LANDLOCK_ACCESS_FS_REMOVE_FILE | LANDLOCK_ACCESS_FS_MAKE_CHAR |
    LANDLOCK_ACCESS_FS_MAKE_DIR | LANDLOCK_ACCESS_FS_MAKE_REG |
    LANDLOCK_ACCESS_FS_MAKE_SOCK | LANDLOCK_ACCESS_FS_MAKE_FIFO |
    LANDLOCK_ACCESS_FS_MAKE_BLOCK | LANDLOCK_ACCESS_FS_MAKE_SYM;

// Missing from Debian 12's headers; the same numbers on every machine.
constexpr int kFchmodat2 = 452;
constexpr int kSetxattrat = 463;
constexpr int kRemovexattrat = 466;
constexpr int kFileSetattr = 469;

// Reading and drawing make none of these calls; a hijacked decoder might.
constexpr int kRefused[] = {
    SCMP_SYS(execve), SCMP_SYS(execveat), SCMP_SYS(ptrace), SCMP_SYS(process_vm_readv),
    SCMP_SYS(process_vm_writev), SCMP_SYS(pidfd_getfd), SCMP_SYS(kill),
    SCMP_SYS(rt_sigqueueinfo), SCMP_SYS(pidfd_send_signal), SCMP_SYS(tkill),
    SCMP_SYS(rt_tgsigqueueinfo),
    // Memory and queues that others may share.
    SCMP_SYS(shmget), SCMP_SYS(shmat), SCMP_SYS(msgget), SCMP_SYS(semget),
    SCMP_SYS(mq_open),
    // What Landlock does not cover of files.
    SCMP_SYS(truncate), SCMP_SYS(chmod), SCMP_SYS(fchmod), SCMP_SYS(fchmodat),
    SCMP_SYS(chown), SCMP_SYS(fchown), SCMP_SYS(lchown), SCMP_SYS(fchownat),
    SCMP_SYS(utime), SCMP_SYS(utimes), SCMP_SYS(futimesat), SCMP_SYS(utimensat),
    SCMP_SYS(setxattr), SCMP_SYS(lsetxattr), SCMP_SYS(fsetxattr), SCMP_SYS(removexattr),
    SCMP_SYS(lremovexattr), SCMP_SYS(fremovexattr), kFchmodat2, kSetxattrat,
    kRemovexattrat, kFileSetattr,
    // What it does cover, for kernels without it.
    SCMP_SYS(creat), SCMP_SYS(mkdir), SCMP_SYS(mkdirat), SCMP_SYS(mknod),
    SCMP_SYS(mknodat), SCMP_SYS(unlink), SCMP_SYS(unlinkat), SCMP_SYS(rmdir),
    SCMP_SYS(rename), SCMP_SYS(renameat), SCMP_SYS(renameat2), SCMP_SYS(link),
    SCMP_SYS(linkat), SCMP_SYS(symlink), SCMP_SYS(symlinkat),
    // What changes the machine, which root could.
    SCMP_SYS(mount), SCMP_SYS(umount2), SCMP_SYS(pivot_root), SCMP_SYS(chroot),
    SCMP_SYS(move_mount), SCMP_SYS(open_tree), SCMP_SYS(fsopen), SCMP_SYS(unshare),
    SCMP_SYS(setns), SCMP_SYS(bpf), SCMP_SYS(perf_event_open), SCMP_SYS(userfaultfd),
    SCMP_SYS(keyctl), SCMP_SYS(add_key), SCMP_SYS(request_key), SCMP_SYS(init_module),
    SCMP_SYS(finit_module), SCMP_SYS(delete_module), SCMP_SYS(kexec_load),
    SCMP_SYS(reboot), SCMP_SYS(swapon), SCMP_SYS(swapoff), SCMP_SYS(open_by_handle_at),
    // A second way to make all the other calls.
    SCMP_SYS(io_uring_setup), SCMP_SYS(io_uring_enter), SCMP_SYS(io_uring_register)};

constexpr int kRefusedNetwork[] = {
    SCMP_SYS(socket), SCMP_SYS(socketpair), SCMP_SYS(connect), SCMP_SYS(bind),
    SCMP_SYS(listen), SCMP_SYS(accept),     SCMP_SYS(accept4)};

/// The version of Landlock that this kernel has; 0 for none.
long LandlockVersion() {
    const long version =
        syscall(SYS_landlock_create_ruleset, nullptr, 0, LANDLOCK_CREATE_RULESET_VERSION);
    return version < 0 ? 0 : version;
}

/// The Landlock rules for files opened by name.
class FileRules {
public:
    explicit FileRules(std::uint64_t handled) : m_handled(handled) {
        const landlock_ruleset_attr attributes = {handled};
        m_descriptor = static_cast<int>(
            syscall(SYS_landlock_create_ruleset, &attributes, sizeof attributes, 0));
    }
    FileRules(const FileRules&) = delete;
    FileRules& operator=(const FileRules&) = delete;
    ~FileRules() {
        if (m_descriptor >= 0) {
            close(m_descriptor);
        }
    }

    /// A missing file needs no permission.
    void Allow(const std::string& path, std::uint64_t access) const {
        const int place = open(path.c_str(), O_PATH | O_CLOEXEC);
        struct stat status = {};
        if (place < 0) {
            return;
        }
        if (fstat(place, &status) == 0 && !S_ISDIR(status.st_mode)) {
            access &=
                LANDLOCK_ACCESS_FS_READ_FILE | LANDLOCK_ACCESS_FS_WRITE_FILE | kTruncate;
        }
        const landlock_path_beneath_attr rule = {access & m_handled, place};
        syscall(SYS_landlock_add_rule, m_descriptor, LANDLOCK_RULE_PATH_BENEATH, &rule,
                0);
        close(place);
    }

    bool Hold() const {
        return m_descriptor >= 0 &&
               syscall(SYS_landlock_restrict_self, m_descriptor, 0) == 0;
    }

private:
    std::uint64_t m_handled;
    int m_descriptor = -1;
};

bool ConfineFiles(const Kept& kept) {
    const long version = LandlockVersion();
    if (version == 0) {
        return false;
    }
    const FileRules rules(kWriting | (version >= 2 ? LANDLOCK_ACCESS_FS_REFER : 0) |
                          (version >= 3 ? kTruncate : 0) |
                          (kept.readable ? kReading : 0));
    rules.Allow("/dev/null", kReading | LANDLOCK_ACCESS_FS_WRITE_FILE | kTruncate);
    if (kept.readable) {
        for (const std::string& path : *kept.readable) {
            rules.Allow(path, kReading);
        }
    }
    return rules.Hold();
}

bool ConfineCalls(const Kept& kept) {
    const std::unique_ptr<void, decltype(&seccomp_release)> filter(
        seccomp_init(SCMP_ACT_ALLOW), &seccomp_release);
    bool held = filter != nullptr;
    const auto refuse = [&](int call, auto... argument) {
        held = held && seccomp_rule_add(filter.get(), SCMP_ACT_ERRNO(EPERM), call,
                                        sizeof...(argument), argument...) == 0;
    };
    for (const int call : kRefused) {
        refuse(call);
    }
    // Allowed within this process only.
    refuse(SCMP_SYS(tgkill), SCMP_A0(SCMP_CMP_NE, static_cast<scmp_datum_t>(getpid())));
    refuse(SCMP_SYS(prlimit64), SCMP_A0(SCMP_CMP_NE, 0));
    for (const scmp_datum_t typing : {TIOCSTI, TIOCLINUX}) {  // as if a person typed
        refuse(SCMP_SYS(ioctl),
               SCMP_A1(SCMP_CMP_MASKED_EQ, std::numeric_limits<unsigned>::max(), typing));
    }
    if (!kept.network) {
        for (const int call : kRefusedNetwork) {
            refuse(call);
        }
    }
    return held && seccomp_load(filter.get()) == 0;
}

bool HasSeccomp() { return seccomp_api_get() > 0; }

}  // namespace

bool Confine(const Kept& kept) {
    if (prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) != 0) {
        return false;
    }
    const bool files = ConfineFiles(kept);
    return ConfineCalls(kept) && files;
}

std::string ConfinementHere() {
    const bool files = LandlockVersion() > 0;
    if (files && HasSeccomp()) {
        return "no new files, no programs, no network";
    }
    if (HasSeccomp()) {
        return "no programs, no network; files are not confined, since this kernel has "
               "no "
               "Landlock";
    }
    return files ? "no new files; programs and the network are not confined, since this "
                   "kernel has no seccomp"
                 : "not confined, since this kernel has neither Landlock nor seccomp";
}

}  // namespace host
