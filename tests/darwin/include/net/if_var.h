#pragma once

// Simulated macOS: the data of a link-layer entry of the interface list.
#include <cstdint>

struct if_data {
    std::uint8_t ifi_type, ifi_typelen, ifi_physical, ifi_addrlen, ifi_hdrlen, ifi_recvquota, ifi_xmitquota,
        ifi_unused1;
    std::uint32_t ifi_mtu, ifi_metric, ifi_baudrate, ifi_ipackets, ifi_ierrors, ifi_opackets, ifi_oerrors,
        ifi_collisions, ifi_ibytes, ifi_obytes, ifi_imcasts, ifi_omcasts, ifi_iqdrops, ifi_noproto,
        ifi_recvtiming, ifi_xmittiming;
    std::int32_t ifi_lastchange[2];
    std::uint32_t ifi_unused2, ifi_hwassist, ifi_reserved1, ifi_reserved2;
};

static_assert(sizeof(if_data) == 96);
