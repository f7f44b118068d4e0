#pragma once

namespace Framework {

/// Starts Xerces, once for the process; safe from many threads. Every call throws std::runtime_error when it cannot be
/// started.
///
/// It is never shut down again: a host may use Xerces too, and its objects would not survive that.
void EnsureXmlRuntime();

/// The same for Xalan's XPath, and for Xerces below it.
void EnsureXPathRuntime();

} // namespace Framework
