/* The version of these headers. Nothing but macros, so that resource compilers read it too. */
#ifndef RULECANVAS_VERSION_H
#define RULECANVAS_VERSION_H

#define RULECANVAS_VERSION_MAJOR 1
#define RULECANVAS_VERSION_MINOR 0
#define RULECANVAS_VERSION_PATCH 0
#define RULECANVAS_VERSION "1.0.0"

#endif
