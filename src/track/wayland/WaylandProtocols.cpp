#include "track/wayland/WaylandProtocols.h"

#include <array>

namespace tempodial {

namespace {

/// Objects among what a request or an event takes; nothing stands for a plain value.
using ArgumentTypes = std::array<const wl_interface*, 5>;

ArgumentTypes plain {};
ArgumentTypes toplevel { &ToplevelInterface };
ArgumentTypes output { &wl_output_interface };
ArgumentTypes seat { &wl_seat_interface };
ArgumentTypes surface { &wl_surface_interface };
ArgumentTypes notification { &IdleNotificationInterface, nullptr, &wl_seat_interface };
ArgumentTypes oldTimeout { &OldIdleTimeoutInterface, &wl_seat_interface };

const std::array managerRequests { wl_message { "stop", "", plain.data() } };
const std::array managerEvents {
    wl_message { "toplevel", "n", toplevel.data() },
    wl_message { "finished", "", plain.data() },
};
const std::array toplevelRequests {
    wl_message { "set_maximized", "", plain.data() },
    wl_message { "unset_maximized", "", plain.data() },
    wl_message { "set_minimized", "", plain.data() },
    wl_message { "unset_minimized", "", plain.data() },
    wl_message { "activate", "o", seat.data() },
    wl_message { "close", "", plain.data() },
    wl_message { "set_rectangle", "oiiii", surface.data() },
    wl_message { "destroy", "", plain.data() },
};
const std::array toplevelEvents {
    wl_message { "title", "s", plain.data() },
    wl_message { "app_id", "s", plain.data() },
    wl_message { "output_enter", "o", output.data() },
    wl_message { "output_leave", "o", output.data() },
    wl_message { "state", "a", plain.data() },
    wl_message { "done", "", plain.data() },
    wl_message { "closed", "", plain.data() },
};
const std::array notifierRequests {
    wl_message { "destroy", "", plain.data() },
    wl_message { "get_idle_notification", "nuo", notification.data() },
};
const std::array notificationRequests { wl_message { "destroy", "", plain.data() } };
const std::array notificationEvents {
    wl_message { "idled", "", plain.data() },
    wl_message { "resumed", "", plain.data() },
};
const std::array oldIdleRequests { wl_message { "get_idle_timeout", "nou", oldTimeout.data() } };
const std::array oldTimeoutRequests {
    wl_message { "release", "", plain.data() },
    wl_message { "simulate_user_activity", "", plain.data() },
};
const std::array oldTimeoutEvents {
    wl_message { "idle", "", plain.data() },
    wl_message { "resumed", "", plain.data() },
};

}

const wl_interface ToplevelManagerInterface { "zwlr_foreign_toplevel_manager_v1", 1, managerRequests.size(),
    managerRequests.data(), managerEvents.size(), managerEvents.data() };
const wl_interface ToplevelInterface { "zwlr_foreign_toplevel_handle_v1", 1, toplevelRequests.size(),
    toplevelRequests.data(), toplevelEvents.size(), toplevelEvents.data() };
const wl_interface IdleNotifierInterface { "ext_idle_notifier_v1", 1, notifierRequests.size(), notifierRequests.data(),
    0, nullptr };
const wl_interface IdleNotificationInterface { "ext_idle_notification_v1", 1, notificationRequests.size(),
    notificationRequests.data(), notificationEvents.size(), notificationEvents.data() };
const wl_interface OldIdleInterface { "org_kde_kwin_idle", 1, oldIdleRequests.size(), oldIdleRequests.data(), 0,
    nullptr };
const wl_interface OldIdleTimeoutInterface { "org_kde_kwin_idle_timeout", 1, oldTimeoutRequests.size(),
    oldTimeoutRequests.data(), oldTimeoutEvents.size(), oldTimeoutEvents.data() };

}
