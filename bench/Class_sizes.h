#ifndef BENCH_CLASS_SIZES_H
#define BENCH_CLASS_SIZES_H

/// Prints how many bytes an object of each class takes on this word size.
void print_class_sizes();

#endif
