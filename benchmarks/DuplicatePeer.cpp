#include "DuplicatePeer.h"

namespace {

using commands::Command;

/// With its comparison of all bytes after the hashes agree, and hard links as copies, which they are for us.
Command jdupes(const std::string &root, std::int64_t minSize)
{
    return {"jdupes", "-r", "-q", "-A", "-H", "-X", "size+=:" + std::to_string(minSize), root};
}

Command rmlint(const std::string &root, std::int64_t minSize)
{
    return {"rmlint", "-T", "df", "--size", std::to_string(minSize), "-o", "fdupes:stdout", root};
}

Command fdupes(const std::string &root, std::int64_t minSize)
{
    return {"fdupes", "-r", "-q", "-A", "-G", std::to_string(minSize), root};
}

/// It knows no hidden files, so it looks at them too; they are few and small.
Command rdfind(const std::string &root, std::int64_t minSize)
{
    return {"rdfind",    "-dryrun", "true",     "-makeresultsfile",      "false",
            "-checksum", "sha256",  "-minsize", std::to_string(minSize), root};
}

} // namespace

const std::vector<DuplicatePeer> &DuplicatePeer::all()
{
    static const std::vector<DuplicatePeer> peers = {
        {"jdupes", jdupes}, {"rmlint", rmlint}, {"fdupes", fdupes}, {"rdfind", rdfind}};
    return peers;
}
