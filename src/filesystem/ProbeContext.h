#pragma once

/// Whose size probes are whose, so that one owner's cancel leaves the others' alone.
enum class ProbeContext {
    generic,
    storage,
    largestDirs,
};
