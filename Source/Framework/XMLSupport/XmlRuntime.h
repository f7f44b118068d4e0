#pragma once

namespace Framework {

/// Starts Xerces, once for the process; safe from many threads. Throws std::bad_alloc while there is no memory to begin
/// with, and std::runtime_error when it cannot be started, which every later call says again.
///
/// A host may start and end Xerces for itself, before, after and around this: Xerces counts. What it may not do is to
/// take away the memory manager that it started Xerces with. It is never ended here: a host may use Xerces too, and its
/// objects would not survive that.
void EnsureXmlRuntime();

/// The same for Xalan's XPath, and for Xerces below it.
void EnsureXPathRuntime();

} // namespace Framework
