#pragma once

// Simulated macOS: the interface list.
#include <sys/socket.h>

struct ifaddrs {
    ifaddrs* ifa_next;
    char* ifa_name;
    unsigned int ifa_flags;
    sockaddr* ifa_addr;
    sockaddr* ifa_netmask;
    sockaddr* ifa_dstaddr;
    void* ifa_data;
};

extern "C" {
int getifaddrs(ifaddrs** list) __asm__("simulated_getifaddrs");
void freeifaddrs(ifaddrs* list) __asm__("simulated_freeifaddrs");
}
