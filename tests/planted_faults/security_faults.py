"""Faults in what the program gives up, and in what others may read and write."""

from planting import Fault

FILTER = "src/confinement/system_call_filter.cpp"
CALLS = "src/confinement/refused_calls.h"
NEED = "src/confinement/network_need.cpp"
RUNTIME = "src/shell/painted/runtime_instance.cpp"
FILTERED = ("test_confinement", "SystemCallFilter.*")
CONFINED = ("test_confinement", "ConfinedProcess.*")

SECURITY_FAULTS = [
    Fault("the confined process starts programs", CALLS, "    {SYS_execve},\n", "", *CONFINED),
    Fault("the confined process makes processes", FILTER, "std::uint32_t kinds = CLONE_THREAD;",
          "std::uint32_t kinds = CLONE_THREAD | SIGCHLD;", *FILTERED),
    Fault("a signal 0 opens the way for every signal", FILTER, "{isArgument(signalArgument, 0)}", "{}", *FILTERED),
    Fault("sockets to other machines are allowed", FILTER, "{{isArgument(0, AF_UNIX)}, ", "{{}, ", *FILTERED),
    Fault("every socket to the kernel is allowed", FILTER, ", isArgument(2, NETLINK_ROUTE)", "", *FILTERED),
    Fault("calls of another architecture pass", FILTER, "text.skipIfEqual(architecture, 1);",
          "text.skipIfEqual(architecture, 1); text.allow();", *FILTERED),
    Fault("a display elsewhere cannot be reached", NEED, "return isElsewhere(addresses.display) || ", "return ",
          "test_confinement", "NetworkNeed.*"),
    Fault("the pipe of another user is used", RUNTIME, " || status.st_uid != ::geteuid()", "", "test_shell",
          "RuntimeInstance.*"),
    Fault("a new folder is open to others", "src/settings/shared_file.cpp", "ownersFolder = 0700", "ownersFolder = 0755",
          "test_settings", "AtomicFileTest.*"),
    Fault("a session without a bus starts one", "src/shell/linux/session_bus.cpp", "return !hasSocket;", "return false;",
          "test_shell", "SessionBusProgram.*"),
]
