#pragma once

class Defaults;

/// The longest lifetime of a scan's result, in seconds: what is counted off it still fits 64 bits.
inline constexpr double longestCacheLifetime = 0x1p62;

/// Seconds for which a scan's result is reused, from the settings as they stand now: the stored minutes, 5 where they
/// are below 1, at most `longestCacheLifetime`.
double cacheLifetime(const Defaults &defaults);
