#pragma once

namespace bench {

/// Look-up of messages beside gettext, loading of catalogs beside expat, memory of a loaded catalog.
void register_catalog_benchmarks();

} // namespace bench
