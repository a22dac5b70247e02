#include "DuplicateTree.h"

#include "TreeParts.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>

namespace {

using treeparts::below;
using treeparts::Random;

constexpr std::int64_t largestSmall = 1 << 20; // bytes
constexpr std::int64_t smallest = 16;          // bytes: room for two stamps

constexpr size_t perMille = 1000;
constexpr size_t asideShare = 50; // contents in a thousand
constexpr size_t fewestCopies = 2;
constexpr std::uint64_t twinEvery = 50; // one content in so many has a twin
constexpr size_t largestAside = 1000;   // bytes, so that those who look there have no more to compare
constexpr size_t copiedAsideEvery = 40; // ... but for one aside file in so many, a copy of any size
constexpr size_t asideFolders = 60;
constexpr std::array asideNames = {".cache", "node_modules", ".git", "__pycache__", "DerivedData", ".build"};

struct Content
{
    std::uint64_t number = 0;
    std::int64_t size = 0;
    bool isTwin = false; ///< begins like its twin of the same size, and differs at the end alone
};

/// The bytes of each content: a piece of one random body, with the content's number as a stamp where it has to differ.
class Bodies
{
public:
    explicit Bodies(Random &random)
        : body_(length, '\0')
    {
        for (size_t i = 0; i < length; i += stampSize)
            stamp(body_.data() + i, random());
        stamp(body_.data(),
              ~std::uint64_t{0}); // no content has this number, so no stamped beginning is this one
    }

    /// Valid until the next call.
    const std::string &bytes(const Content &content)
    {
        const auto size = static_cast<size_t>(content.size);
        bytes_.clear();
        for (size_t from = content.isTwin ? 0 : content.number * step % length; bytes_.size() < size;
             from = 0)
            bytes_.append(body_, from, std::min(length - from, size - bytes_.size()));
        stamp(bytes_.data() + (content.isTwin ? size - stampSize : 0), content.number);
        return bytes_;
    }

private:
    static constexpr size_t length = 1 << 20;
    static constexpr size_t step = 4099;
    static constexpr size_t stampSize = sizeof(std::uint64_t);

    static void stamp(char *place, std::uint64_t number) { std::memcpy(place, &number, stampSize); }

    std::string body_;
    std::string bytes_;
};

class Maker
{
public:
    Maker(const std::string &home, const DuplicateTreeShape &shape)
        : shape_(shape)
        , random_(shape.tree.seed)
        , folders_(treeparts::makeFolders(home, shape.tree, random_))
        , bodies_(random_)
        , sizes_(std::log(shape.tree.medianSize), shape.tree.spread)
        , wanted_(shape.tree.files)
    {
        makeAsideFolders(home);
    }

    PlantedTree run()
    {
        while (made_ < wanted_) {
            if (below(random_, perMille) < asideShare)
                plantAside();
            else
                plantCopies();
        }
        return std::move(tree_);
    }

private:
    void makeAsideFolders(const std::string &home)
    {
        asideFolders_ = {home + "/Library"};
        for (size_t i = 1; i < asideFolders; ++i) // behind one another, so that no two meet in one folder
            asideFolders_.push_back(folders_[i * folders_.size() / asideFolders] + "/"
                                    + asideNames[i % asideNames.size()]);
        for (const std::string &folder : asideFolders_)
            treeparts::makeFolder(folder);
    }

    std::int64_t smallSize()
    {
        return std::clamp(static_cast<std::int64_t>(sizes_(random_)), smallest, largestSmall);
    }

    Content nextContent()
    {
        Content content{nextNumber_++};
        content.isTwin = content.number % twinEvery < 2;
        if (content.number % twinEvery == 0)
            twinSize_ = smallSize();
        if (content.isTwin)
            content.size = twinSize_;
        else if (below(random_, perMille) < shape_.largePerMille)
            content.size =
                largestSmall + 1
                + static_cast<std::int64_t>(below(random_, static_cast<size_t>(shape_.largestBeyond)));
        else
            content.size = smallSize();
        return content;
    }

    void plantCopies()
    {
        const Content content = nextContent();
        const size_t drawn = below(random_, shape_.groupEvery) == 0
                                 ? fewestCopies + below(random_, shape_.mostCopies - fewestCopies + 1)
                                 : 1;
        const size_t copies = std::min(drawn, static_cast<size_t>(wanted_ - made_));
        PlantedTree::Group group{content.size, {}};
        for (size_t copy = 0; copy < copies; ++copy) {
            const std::string &folder = folders_[below(random_, folders_.size())];
            const bool isLink = copy > 0 && shape_.linkEvery > 0 && below(random_, shape_.linkEvery) == 0;
            group.paths.push_back(isLink ? link(folder, group.paths.front()) : write(folder, "", content));
        }
        if (copies < fewestCopies)
            return;
        tree_.groups.push_back(std::move(group));
        copied_ = content;
    }

    void plantAside()
    {
        Content content{nextNumber_,
                        smallest + static_cast<std::int64_t>(below(random_, largestAside - smallest))};
        if (tree_.asides.size() % copiedAsideEvery == 0 && !tree_.groups.empty())
            content = copied_;
        else
            ++nextNumber_;
        const bool isHiddenFile = below(random_, 2) == 0;
        const std::vector<std::string> &folders = isHiddenFile ? folders_ : asideFolders_;
        tree_.asides.insert(write(folders[below(random_, folders.size())], isHiddenFile ? "." : "", content));
    }

    std::string nextPath(const std::string &folder, const char *dot)
    {
        return folder + "/" + dot + "file " + std::to_string(made_++) + ".dat";
    }

    /// Gives the path, as the next one does.
    std::string link(const std::string &folder, const std::string &file)
    {
        std::string path = nextPath(folder, "");
        treeparts::makeLink(path, file);
        return path;
    }

    std::string write(const std::string &folder, const char *dot, const Content &content)
    {
        std::string path = nextPath(folder, dot);
        treeparts::makeFile(path, bodies_.bytes(content), content.size);
        return path;
    }

    const DuplicateTreeShape &shape_;
    Random random_;
    const std::vector<std::string> folders_;
    std::vector<std::string> asideFolders_;
    Bodies bodies_;
    std::lognormal_distribution<double> sizes_;
    const int wanted_;
    int made_ = 0;
    std::uint64_t nextNumber_ = 0;
    std::int64_t twinSize_ = smallest;
    Content copied_; // that of the last group
    PlantedTree tree_;
};

} // namespace

/// Few small files have the size of another of no kin, folders hold some twenty files, and one file in five is one of two
/// to ten equal ones.
const DuplicateTreeShape &DuplicateTreeShape::usual()
{
    static const DuplicateTreeShape shape = {
        .name = "dup",
        .tree = {.filesPerFolder = 20, .medianSize = 2048, .spread = 1.6},
        .largePerMille = 31,
        .largestBeyond = 1 << 16,
        .groupEvery = 25,
        .mostCopies = 10,
    };
    return shape;
}

/// A home of projects and media: folders of few files that reach far down, sizes that mostly stand alone, pairs rather
/// than crowds of equal files, some of them hard links, and a few films.
const DuplicateTreeShape &DuplicateTreeShape::deep()
{
    static const DuplicateTreeShape shape = {
        .name = "deep",
        .tree = {.seed = 2,
                 .filesPerFolder = 8,
                 .topFolders = 12,
                 .shallowestBranch = 4,
                 .deepestBranch = 7,
                 .medianSize = 3000,
                 .spread = 2.2},
        .largePerMille = 2,
        .largestBeyond = 16 << 20,
        .groupEvery = 12,
        .mostCopies = 3,
        .linkEvery = 10,
    };
    return shape;
}

PlantedTree generateDuplicateTree(const std::string &home, const DuplicateTreeShape &shape)
{
    return Maker(home, shape).run();
}
