// SPDX-License-Identifier: MIT
#pragma once

#include <panorel/kit/LayoutDocument.h>

#include <QObject>
#include <QString>
#include <QVector>

namespace Panorel {
class Manager;
} // namespace Panorel

namespace Panorel::Kit::Detail {

class Activity;

/** Brings layouts into files and out of files that may hold anything. */
class Transfer : public QObject
{
    Q_OBJECT

public:
    /** Both must outlive this object. */
    Transfer(Manager& manager, Activity& activity);
    ~Transfer() override;

    /** What becomes of the layouts that are there. */
    enum class Mode {
        /** The file's take the place of all. */
        Replace,
        /** The file's are added; those of the same name are replaced. */
        Add
    };

    /** What can be taken of a file. */
    struct Content
    {
        /** The name of the file for messages. */
        QString name;
        /** The layouts, without parts that are not sound. */
        LayoutDocument document;
        /** Why parts were left out. */
        QVector<Problem> dropped;
        /** Why nothing can be taken, in words; null if something can. */
        QString problem;
    };
    /** Reads a file with layouts; nothing is changed. */
    Content read(const QString& fileName) const;
    /** Writes @p document. An existing file is replaced whole or stays as it is. @return why it
        failed, in words; null if it did not. */
    static QString write(const QString& fileName, const QByteArray& document);

    /** Writes all layouts. An existing file is replaced whole or stays as it is. @return why it
        failed, in words; null if it did not. */
    QString exportTo(const QString& fileName);
    /** Takes the layouts of a file, without those that are not sound. @return why nothing was
        changed, in words; null if it was. */
    QString importFrom(const QString& fileName, Mode mode);
    /** The same with a document that has been read already. @param name of the file for messages.
     */
    QString importDocument(LayoutDocument document, const QString& name, Mode mode);

Q_SIGNALS:
    /** @p document, whose layouts are named @p name, is about to be taken over. */
    void importing(const QString& name);
    /** Something was done; a sentence for the user. */
    void message(const QString& text);

private:
    void check(Content& content) const;
    QString take(const Content& content, Mode mode);
    bool hasViews(const LayoutDocument& document) const;

    Manager& m_manager;
    Activity& m_activity;
};

} // namespace Panorel::Kit::Detail
