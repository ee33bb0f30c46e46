#ifndef ISO11783_EXPORT_H
#define ISO11783_EXPORT_H

/// Marks what a shared library of this project shows to its users; everything else stays hidden.
#define VTUI_EXPORT __attribute__((visibility("default")))

#endif
