#pragma once

// Aravis and GLib for the translation units that call them; never included
// from a header. GLib names a struct member `signals`, which Qt's keyword
// macro would rewrite, so the macro is lifted around the C headers.

#ifdef signals
#define ZVC_ARAVIS_RESTORE_SIGNALS
#undef signals
#endif

#include <arv.h>

#ifdef ZVC_ARAVIS_RESTORE_SIGNALS
#define signals Q_SIGNALS
#undef ZVC_ARAVIS_RESTORE_SIGNALS
#endif
