#pragma once

// Simulated macOS: the kernel's page size.
#include <mach/mach.h>

extern "C" vm_size_t vm_kernel_page_size;
