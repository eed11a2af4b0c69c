// SPDX-License-Identifier: MIT
#include <QGenericPlugin>
#include <QPluginLoader>
#include <QTest>

#include <memory>

// Qt declares the function as constant, which it is not here.
static const char* volatile version = QT_VERSION_STR;

// The plugin finds this one, because the dynamic linker looks into the program before it looks into
// the libraries.
const char* qVersion() noexcept
{
    return version;
}

/** The plugin in a program whose version of Qt is another than its own. */
class PluginVersionTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void otherVersionsAreLeftAlone_data();
    void otherVersionsAreLeftAlone();
};

void PluginVersionTest::otherVersionsAreLeftAlone_data()
{
    QTest::addColumn<QByteArray>("ofProgram");
    QTest::addColumn<QByteArray>("made");
    QTest::newRow("same") << QByteArray(QT_VERSION_STR)
                          << QByteArray("Panorel::Plugin::ProgramWindows");
    QTest::newRow("other") << QByteArray("5.15.255") << QByteArray("QObject");
}

void PluginVersionTest::otherVersionsAreLeftAlone()
{
    QFETCH(QByteArray, ofProgram);
    QPluginLoader loader(QStringLiteral(PLUGINS "/generic/libpanorel-plugin"));
    auto* const plugin = qobject_cast<QGenericPlugin*>(loader.instance());
    QVERIFY2(plugin, qPrintable(loader.errorString()));
    version = ofProgram.constData();
    const std::unique_ptr<QObject> object(plugin->create(QStringLiteral("panorel"), QString()));
    version = QT_VERSION_STR;
    QVERIFY(object);
    QTEST(QByteArray(object->metaObject()->className()), "made");
}

QTEST_GUILESS_MAIN(PluginVersionTest)
#include "PluginVersionTest.moc"
