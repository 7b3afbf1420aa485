#pragma once

/// What the process gives up before it looks at anything that others wrote.
namespace orvelle {

/// Makes the kernel refuse what the program never asks for, in this thread and all that it starts: other
/// programs and processes, other processes' memory and signals, privileges, mounts, sockets to elsewhere.
/// `docs/reliability.md` has the list. It cannot be undone. Where the kernel offers no such thing, it does
/// nothing: it protects, and nothing depends on it. To be called before the first other thread starts.
void confineProcess();

} // namespace orvelle
