// quillmere-driver: runs the engines without a window and prints plain results, for benchmarks, for comparing with
// oracles and for trying things by hand.

#include "Arguments.h"
#include "base/Paths.h"
#include "UsageError.h"
#include "Verbs.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>

namespace {

constexpr int exitBadUsage = 2;
const QString helpOption = QStringLiteral("help");

std::vector<Verb> allVerbs()
{
    std::vector<Verb> all;
    for (const auto &group : verbs::groups) {
        const std::vector<Verb> verbs = group();
        all.insert(all.end(), verbs.begin(), verbs.end());
    }
    return all;
}

std::vector<Option> allOptions(const std::vector<Verb> &verbs)
{
    std::vector<Option> all = {{helpOption}};
    for (const Verb &verb : verbs)
        all.insert(all.end(), verb.options.begin(), verb.options.end());
    return all;
}

void put(FILE *stream, const QString &line)
{
    fprintf(stream, "%s\n", paths::toBytes(line).constData());
}

void printHelp(FILE *stream, const std::vector<Verb> &verbs)
{
    put(stream,
        QStringLiteral("Runs the engines of Quillmere without a window.\n"
                       "Usage: quillmere-driver VERB ARGUMENTS...; options may stand anywhere, and what "
                       "follows \"--\" is none.\n"));
    for (const Verb &verb : verbs)
        put(stream, QStringLiteral("  %1 %2\n      %3").arg(verb.name, verb.usage, verb.summary));
}

void run(const std::vector<Verb> &verbs, const Arguments &arguments)
{
    const auto verb = std::find_if(verbs.begin(), verbs.end(), [&arguments](const Verb &candidate) {
        return candidate.name == arguments.verb();
    });
    if (verb == verbs.end())
        throw UsageError{QStringLiteral("there is no verb \"%1\"; --help lists them").arg(arguments.verb())};
    try {
        arguments.requireOptions(verb->options);
        arguments.requireOperands(verb->leastOperands, verb->mostOperands);
        verb->run(arguments);
    } catch (const UsageError &error) {
        throw UsageError{
            QStringLiteral("%1\nUsage: quillmere-driver %2 %3").arg(error.message, verb->name, verb->usage)};
    }
}

} // namespace

int main(int argc, char *argv[])
{
    const std::vector<Verb> verbs = allVerbs();
    try {
        const Arguments arguments(std::vector<QByteArray>(argv + std::min(argc, 1), argv + argc),
                                  allOptions(verbs));
        if (arguments.has(helpOption)) {
            printHelp(stdout, verbs);
        } else if (arguments.verb().isEmpty()) {
            printHelp(stderr, verbs);
            return exitBadUsage;
        } else {
            run(verbs, arguments);
        }
    } catch (const UsageError &error) {
        put(stderr, QStringLiteral("quillmere-driver: ") + error.message);
        return exitBadUsage;
    }
    return fflush(stdout) == 0 && ferror(stdout) == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}
