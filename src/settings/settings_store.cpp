#include "settings/settings_store.h"
