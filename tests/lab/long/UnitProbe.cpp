// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
// usage: lab-probe list | lab-probe NAME | lab-probe execute NAME
// Tries one thing that the helper has no business with, and says "NAME begun" and then "NAME done"
// or "NAME refused: WHY" in one line each. The exit code is 0 when it was done. It is a program of
// its own, and of few system calls: those of an interpreter alone are refused within the helper's
// unit. What it needs for that: the environment's LAB_MODULE, the file of a module that is not
// loaded, and LAB_PROCESS, the number of a process.
#include <array>
#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <fcntl.h>
#include <functional>
#include <grp.h>
#include <linux/bpf.h>
#include <linux/capability.h>
#include <linux/keyctl.h>
#include <linux/perf_event.h>
#include <linux/reboot.h>
#include <netinet/in.h>
#include <sched.h>
#include <string>
#include <sys/io.h>
#include <sys/ipc.h>
#include <sys/klog.h>
#include <sys/mman.h>
#include <sys/mount.h>
#include <sys/personality.h>
#include <sys/ptrace.h>
#include <sys/resource.h>
#include <sys/shm.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/sysmacros.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace {

constexpr int nobody = 65534;

/// Negative, with errno, when it was refused: as system calls answer.
using Attempt = std::function<long()>;

struct Probe
{
    const char *name;
    Attempt attempt;
};

const char *environment(const char *name)
{
    const char *value = std::getenv(name);
    return value ? value : "";
}

long writeBelow(const std::string &folder)
{
    const std::string path = folder + "/lab-probe";
    const int file = open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600);
    return file < 0 ? -1 : unlink(path.c_str());
}

long openFile(const std::string &path, int flags)
{
    std::array<char, 1> octet{};
    const int file = open(path.c_str(), flags | O_CLOEXEC);
    return file < 0 || flags != O_RDONLY ? file : read(file, octet.data(), octet.size());
}

long makeControlGroup()
{
    const char *const folder = "/sys/fs/cgroup/lab-probe";
    return mkdir(folder, 0700) < 0 ? -1 : rmdir(folder);
}

long connectTo(const char *path)
{
    sockaddr_un address{.sun_family = AF_UNIX, .sun_path = {}};
    std::strncpy(address.sun_path, path, sizeof address.sun_path - 1);
    const int link = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    return link < 0 ? -1 : connect(link, reinterpret_cast<sockaddr *>(&address), sizeof address);
}

long connectByInternet()
{
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(9);
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    const int link = socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC, 0);
    return link < 0 ? -1 : connect(link, reinterpret_cast<sockaddr *>(&address), sizeof address);
}

long loadModule()
{
    static std::array<char, 4 << 20> image;
    const int file = open(environment("LAB_MODULE"), O_RDONLY | O_CLOEXEC);
    std::size_t size = 0;
    for (ssize_t part = 1; part > 0; size += static_cast<std::size_t>(part)) {
        part = read(file, image.data() + size, image.size() - size);
        if (part < 0) {
            std::puts("the module cannot be read");
            std::exit(2);
        }
    }
    return syscall(SYS_init_module, image.data(), size, "");
}

long gainCapability()
{
    __user_cap_header_struct header{.version = _LINUX_CAPABILITY_VERSION_3, .pid = 0};
    std::array<__user_cap_data_struct, 2> sets{};
    sets[0].effective = sets[0].permitted = 1U << CAP_SYS_ADMIN | 1U << CAP_NET_ADMIN;
    return syscall(SYS_capset, &header, sets.data());
}

long forkChild()
{
    const pid_t child = fork();
    if (child == 0) {
        _exit(0);
    }
    return child < 0 ? -1 : waitpid(child, nullptr, 0);
}

// What is written cannot be executed afterwards, by whatever way.
long mapBoth()
{
    void *page =
        mmap(nullptr, 4096, PROT_READ | PROT_WRITE | PROT_EXEC, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    return page == MAP_FAILED ? -1 : 0;
}

long makeExecutable()
{
    void *page = mmap(nullptr, 4096, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    return mprotect(page, 4096, PROT_READ | PROT_EXEC);
}

long mountFolder()
{
    const long result = mount("none", "/tmp", "tmpfs", 0, nullptr);
    return result != 0 ? result : umount("/tmp");
}

long setTime()
{
    timespec now{};
    clock_gettime(CLOCK_REALTIME, &now);
    return clock_settime(CLOCK_REALTIME, &now);
}

long setUserBit()
{
    // The file is made where nothing else keeps from making it.
    const int file = open("/tmp/lab-probe", O_WRONLY | O_CREAT | O_CLOEXEC, 0600);
    const long result = file < 0 ? -1 : fchmod(file, 04700);
    const int why = errno;
    unlink("/tmp/lab-probe");
    errno = why;
    return result;
}

long runInRealTime()
{
    const sched_param priority{.sched_priority = 1};
    return sched_setscheduler(0, SCHED_FIFO, &priority);
}

long loadProgram()
{
    bpf_attr map{};
    map.map_type = BPF_MAP_TYPE_ARRAY;
    map.key_size = map.value_size = sizeof(int);
    map.max_entries = 1;
    return syscall(SYS_bpf, BPF_MAP_CREATE, &map, sizeof map);
}

long watchPerformance()
{
    perf_event_attr event{};
    event.type = PERF_TYPE_SOFTWARE;
    event.size = sizeof event;
    event.config = PERF_COUNT_SW_CPU_CLOCK;
    return syscall(SYS_perf_event_open, &event, 0, -1, -1, 0);
}

// getpid(2) as 32-bit programs call it.
long callAsOtherArchitecture()
{
    long result = 20;
#ifdef __x86_64__
    asm volatile("int $0x80" : "+a"(result) : : "memory", "r8", "r9", "r10", "r11");
#endif
    return result == getpid() ? 0 : -1;
}

long openManyFiles()
{
    constexpr int many = 600;
    for (int i = 0; i < many; ++i) {
        if (dup(STDOUT_FILENO) < 0) {
            return -1;
        }
    }
    return 0;
}

long takeMemory()
{
    constexpr std::size_t much = 256U << 20;
    void *memory = mmap(nullptr, much, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (memory == MAP_FAILED) {
        return -1;
    }
    std::memset(memory, 1, much);
    return 0;
}

std::vector<Probe> probes()
{
    return {
        {"write-etc", [] { return writeBelow("/etc"); }},
        {"write-usr", [] { return writeBelow("/usr"); }},
        {"write-usr-local", [] { return writeBelow("/usr/local"); }},
        {"write-var", [] { return writeBelow("/var"); }},
        {"write-home", [] { return writeBelow("/home"); }},
        {"write-home-of-user", [] { return writeBelow("/home/quillon"); }},
        {"write-run", [] { return writeBelow("/run"); }},
        {"write-root-folder", [] { return writeBelow(""); }},
        {"write-kernel-setting", [] { return openFile("/proc/sys/vm/swappiness", O_WRONLY); }},
        {"make-control-group", makeControlGroup},
        {"read-home-of-user", [] { return openFile("/home/quillon/.profile", O_RDONLY); }},
        {"read-home-of-root",
            [] { return openFile(std::string("/root") + "/.profile", O_RDONLY); }},
        {"read-passwords", [] { return openFile("/etc/shadow", O_RDONLY); }},
        {"read-configuration", [] { return openFile("/etc/machine-id", O_RDONLY); }},
        {"read-other-process",
            [] {
                return openFile(
                    "/proc/" + std::string(environment("LAB_PROCESS")) + "/environ", O_RDONLY);
            }},
        {"read-kernel-log", [] { return openFile("/dev/kmsg", O_RDONLY | O_NONBLOCK); }},
        {"read-disk", [] { return openFile("/dev/vda", O_RDONLY); }},
        {"connect-to-systemd", [] { return connectTo("/run/systemd/private"); }},
        {"connect-to-session-bus", [] { return connectTo("/run/user/1000/bus"); }},
        {"connect-by-internet", connectByInternet},
        {"socket-inet6", [] { return socket(AF_INET6, SOCK_STREAM | SOCK_CLOEXEC, 0); }},
        {"socket-packet", [] { return socket(AF_PACKET, SOCK_RAW | SOCK_CLOEXEC, 0); }},
        {"socket-raw", [] { return socket(AF_INET, SOCK_RAW | SOCK_CLOEXEC, IPPROTO_ICMP); }},
        {"socket-algorithm", [] { return socket(AF_ALG, SOCK_SEQPACKET | SOCK_CLOEXEC, 0); }},
        {"trace",
            [] {
                return ptrace(
                    PTRACE_SEIZE, std::atoi(environment("LAB_PROCESS")), nullptr, nullptr);
            }},
        {"signal", [] { return kill(std::atoi(environment("LAB_PROCESS")), 0); }},
        {"mount", mountFolder},
        {"change-root", [] { return chroot("/usr"); }},
        {"load-module", loadModule},
        {"become-nobody", [] { return setuid(nobody); }},
        {"leave-groups", [] { return syscall(SYS_setgroups, 0, nullptr); }},
        {"new-file-system", [] { return unshare(CLONE_NEWNS); }},
        {"new-users", [] { return unshare(CLONE_NEWUSER); }},
        {"new-network", [] { return unshare(CLONE_NEWNET); }},
        {"gain-capability", gainCapability},
        {"set-time", setTime},
        {"set-host-name", [] { return sethostname("lab", 3); }},
        {"make-device", [] { return mknod("/tmp/lab-device", S_IFCHR, makedev(1, 3)); }},
        {"give-file-away", [] { return chown("/tmp", 0, 0); }},
        {"raise-priority", [] { return setpriority(PRIO_PROCESS, 0, -5); }},
        {"reboot-keys",
            [] {
                return syscall(SYS_reboot, LINUX_REBOOT_MAGIC1, LINUX_REBOOT_MAGIC2,
                    LINUX_REBOOT_CMD_CAD_OFF, nullptr);
            }},
        {"kernel-log", [] { return klogctl(10, nullptr, 0); }},
        {"ports", [] { return ioperm(0x80, 1, 1); }},
        {"map-writable-and-executable", mapBoth},
        {"make-executable", makeExecutable},
        {"anonymous-file", [] { return memfd_create("lab", MFD_CLOEXEC); }},
        {"other-personality", [] { return personality(PER_LINUX32); }},
        {"real-time", runInRealTime},
        {"set-user-bit", setUserBit},
        {"bpf", loadProgram},
        {"performance", watchPerformance},
        {"keyring",
            [] { return syscall(SYS_keyctl, KEYCTL_GET_KEYRING_ID, KEY_SPEC_USER_KEYRING, 1); }},
        {"shared-memory", [] { return shmget(IPC_PRIVATE, 4096, IPC_CREAT | 0600); }},
        {"fork", forkChild},
        {"many-files", openManyFiles},
        {"other-architecture", callAsOtherArchitecture},
        // The last: its end may be the unit's.
        {"memory", takeMemory},
    };
}

int probe(const Probe &one)
{
    std::printf("%s begun\n", one.name);
    std::fflush(stdout);
    errno = 0;
    const bool done = one.attempt() >= 0;
    if (done) {
        std::printf("%s done\n", one.name);
    } else {
        std::printf("%s refused: %s\n", one.name, std::strerror(errno));
    }
    std::fflush(stdout);
    return done ? 0 : 1;
}

} // namespace

int main(int argc, char **argv)
{
    if (argc == 3 && std::strcmp(argv[1], "execute") == 0) {
        return execv(argv[0], std::array<char *, 3>{argv[0], argv[2], nullptr}.data());
    }
    const std::string wanted = argc == 2 ? argv[1] : "";
    for (const Probe &one : probes()) {
        if (wanted == "list") {
            std::puts(one.name);
        } else if (wanted == one.name) {
            return probe(one);
        }
    }
    return wanted == "list" ? 0 : 2;
}
