// SPDX-License-Identifier: MIT

// Linked before everything else, this library takes the place of the translation service and of
// Qt's resource registration. It prints, in their order, the calls that a library of ours makes
// when it is loaded and unloaded.

#include <QByteArray>
#include <QString>
#include <QtGlobal>

#include <dlfcn.h>

#include <cstdio>
#include <cstring>

#define RECORDER_EXPORT __attribute__((visibility("default")))

namespace {

struct Collection
{
    int version;
    const unsigned char* tree;
    const unsigned char* names;
    const unsigned char* data;
};

bool operator==(const Collection& a, const Collection& b)
{
    return a.version == b.version && a.tree == b.tree && a.names == b.names && a.data == b.data;
}

Collection registered{};

void print(const QByteArray& line)
{
    std::fputs(line.constData(), stdout);
    std::fputc('\n', stdout);
    std::fflush(stdout);
}

// Qt's own libraries register collections too; only ours is of interest.
bool isOurs(const unsigned char* tree)
{
    Dl_info info;
    return dladdr(tree, &info) && std::strstr(info.dli_fname, "libpanorel.so");
}

bool forward(const char* mangledName, const Collection& collection)
{
    using Operation =
        bool (*)(int, const unsigned char*, const unsigned char*, const unsigned char*);
    const auto next = reinterpret_cast<Operation>(dlsym(RTLD_NEXT, mangledName));
    return next && next(collection.version, collection.tree, collection.names, collection.data);
}

QByteArray outcome(bool succeeded)
{
    return succeeded ? QByteArrayLiteral("done") : QByteArrayLiteral("refused");
}

// A node of format 1 has 14 bytes: the name's offset (4); then for a directory flags (2), the
// number of children (4) and the first child (4), and for a file flags (2), country (2),
// language (2) and the content's offset (4).
QByteArray nodes(const unsigned char* tree, int count)
{
    QByteArray text;
    for (int i = 0; i < count; ++i) {
        const QByteArray node(reinterpret_cast<const char*>(tree) + 14 * i, 14);
        text += ' ' + node.toHex();
    }
    return text;
}

} // namespace

class RECORDER_EXPORT TranslationCenter
{
public:
    static TranslationCenter& Instance();
    void Register(const QString& name);
    void Unregister(const QString& name);
};

TranslationCenter& TranslationCenter::Instance()
{
    static TranslationCenter instance;
    return instance;
}

void TranslationCenter::Register(const QString& name)
{
    print("Register(\"" + name.toUtf8() + "\")");
}

void TranslationCenter::Unregister(const QString& name)
{
    print("Unregister(\"" + name.toUtf8() + "\")");
}

RECORDER_EXPORT bool qRegisterResourceData(int version, const unsigned char* tree,
                                           const unsigned char* names, const unsigned char* data)
{
    const Collection collection{version, tree, names, data};
    const bool succeeded = forward("_Z21qRegisterResourceDataiPKhS0_S0_", collection);
    if (isOurs(tree)) {
        registered = collection;
        print("register resources of version " + QByteArray::number(version) + ": " +
              outcome(succeeded));
        print("tree" + nodes(tree, 2));
    }
    return succeeded;
}

RECORDER_EXPORT bool qUnregisterResourceData(int version, const unsigned char* tree,
                                             const unsigned char* names, const unsigned char* data)
{
    const Collection collection{version, tree, names, data};
    const bool succeeded = forward("_Z23qUnregisterResourceDataiPKhS0_S0_", collection);
    if (isOurs(tree)) {
        const bool same = collection == registered;
        print("unregister resources of version " + QByteArray::number(version) + ", " +
              (same ? "all four arguments as before" : "other arguments") + ": " +
              outcome(succeeded));
    }
    return succeeded;
}
