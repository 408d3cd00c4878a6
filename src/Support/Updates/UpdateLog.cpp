#include "Support/Updates/UpdateLog.h"

Q_LOGGING_CATEGORY(updateLog, "orvel.updater")
