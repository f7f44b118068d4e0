#pragma once

/// Marks what applications may link against. The library is built with hidden visibility, so a class or function
/// without this mark is invisible outside of it.
#define FRAMEWORK_API __attribute__((visibility("default")))
