#pragma once

#include <cerrno>
#include <sys/syscall.h>

namespace orvelle {

/// A system call that is refused whatever its arguments are, and the error that the caller gets.
struct RefusedCall {
    long number;
    int error = EPERM;
};

/// In groups: other programs; other processes; privileges; mounts and namespaces; ways around this list; the
/// kernel. Not every architecture and release has each of them.
inline constexpr RefusedCall refusedCalls[]{
    {SYS_execve},
    {SYS_execveat},
#ifdef SYS_fork
    {SYS_fork},
#endif
#ifdef SYS_vfork
    {SYS_vfork},
#endif
    // Its arguments are in memory, where no filter can look. The C library then uses `clone`.
    {SYS_clone3, ENOSYS},

    {SYS_process_vm_readv},
    {SYS_process_vm_writev},
    {SYS_kcmp},
    {SYS_tkill},
    {SYS_pidfd_send_signal},
#ifdef SYS_pidfd_getfd
    {SYS_pidfd_getfd},
#endif
#ifdef SYS_process_madvise
    {SYS_process_madvise},
#endif

    {SYS_setuid},
    {SYS_setgid},
    {SYS_setreuid},
    {SYS_setregid},
    {SYS_setresuid},
    {SYS_setresgid},
    {SYS_setfsuid},
    {SYS_setfsgid},
    {SYS_setgroups},
    {SYS_capset},

    {SYS_mount},
    {SYS_umount2},
    {SYS_fsopen},
    {SYS_fsconfig},
    {SYS_fsmount},
    {SYS_fspick},
    {SYS_open_tree},
    {SYS_move_mount},
#ifdef SYS_mount_setattr
    {SYS_mount_setattr},
#endif
    {SYS_pivot_root},
    {SYS_chroot},
    {SYS_unshare},
    {SYS_setns},
    {SYS_open_by_handle_at},
    {SYS_fanotify_init},

    {SYS_io_uring_setup},
    {SYS_io_uring_enter},
    {SYS_io_uring_register},

    {SYS_bpf},
    {SYS_perf_event_open},
    {SYS_userfaultfd},
    {SYS_add_key},
    {SYS_request_key},
    {SYS_keyctl},
    {SYS_init_module},
    {SYS_finit_module},
    {SYS_delete_module},
    {SYS_kexec_load},
#ifdef SYS_kexec_file_load
    {SYS_kexec_file_load},
#endif
    {SYS_reboot},
    {SYS_swapon},
    {SYS_swapoff},
    {SYS_acct},
    {SYS_quotactl},
    {SYS_syslog},
    {SYS_sethostname},
    {SYS_setdomainname},
    {SYS_settimeofday},
    {SYS_clock_settime},
#ifdef SYS_iopl
    {SYS_iopl},
    {SYS_ioperm},
#endif
};

} // namespace orvelle
