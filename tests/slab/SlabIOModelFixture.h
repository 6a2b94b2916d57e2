#pragma once

#include "platform/dwgx/DWGXModel.h"
#include "platform/dwgx/HBXCADFileHelper.h"
#include "platform/dwgx/HBXCADIOperator.h"
#include "platform/geometry/CLine2d.h"
#include "slab/ORVCADBoardLocalIOModel_Sample.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <map>
#include <memory>

/** What the model and its options let the services do alone. */
class ORVCADBoardLocalIOModelTestAccess
{
public:
    using IOModel = ORVCADBoardLocalIOModel_Sample;

    static std::map<QString, QString> &values(const ORVCADBoardOptions_Sample &options) { return options.values(); }
    static void setFloor(IOModel &model, const QString &region, const QString &floor, double topElev, double btmElev)
    {
        model.setCurrentRegionAndFloor(region, floor, topElev, btmElev);
    }
    static void setORVFileName(IOModel &model, const QString &name) { model.setORVFileName(name); }
};

/** A folder to work in and another one in the place of the system's temporary one. */
class SlabIOModelFixture : public ::testing::Test
{
public:
    SlabIOModelFixture(const SlabIOModelFixture &) = delete;
    SlabIOModelFixture &operator=(const SlabIOModelFixture &) = delete;

protected:
    using IOModel = ORVCADBoardLocalIOModel_Sample;
    using IOAccess = ORVCADBoardLocalIOModelTestAccess;
    using DrawingPtr = std::unique_ptr<dwgx::DWGXModel>;

    SlabIOModelFixture() { useTemporary(m_temporary.path()); }
    ~SlabIOModelFixture() override
    {
        if (m_systems.isNull())
            qunsetenv("TMPDIR");
        else
            qputenv("TMPDIR", m_systems);
    }

    /** From now on QDir::temp() is that folder. */
    static void useTemporary(const QString &folder) { qputenv("TMPDIR", QFile::encodeName(folder)); }
    QString path(const QString &name) const { return m_folder.filePath(name); }
    QString put(const QString &name, const QByteArray &content) const
    {
        QFile file(path(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        return path(name);
    }
    /** What stands in the temporary folder. */
    QStringList leftovers() const
    {
        return QDir(m_temporary.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }

    /** A drawing of one line on the layer "WALL". */
    static DrawingPtr drawing(const QString &title = QStringLiteral("plan"))
    {
        DrawingPtr result(dwgx::DWGXModel::createObject());
        result->setTitle(title);
        result->addLayer("WALL", 3);
        dwgx::DWGXLine line;
        line.curve = new vks::CLine2d({0, 0}, {1000, 0});
        result->addLine("WALL", std::move(line));
        return result;
    }
    /** The path of a drawing file of that name. */
    QString drawingFile(const QString &name, const QString &title = QStringLiteral("plan")) const
    {
        return written(name, *drawing(title));
    }
    QString written(const QString &name, const dwgx::DWGXModel &content) const
    {
        const std::unique_ptr<HBXCADIOperator> drawings(HBXCADFileHelper::getInstance()->createCADIOperator());
        EXPECT_TRUE(drawings->write(path(name), &content, QString(), QString()));
        return path(name);
    }
    /** A hold on the one line of a drawing, which tells whether the drawing lives: it holds the line too. */
    static vks::CRefPtr<vks::CCurve2d> lineOf(const dwgx::DWGXModel &content)
    {
        return content.layers().at(0).lines.at(0).curve;
    }
    static bool lives(const vks::CRefPtr<vks::CCurve2d> &lineOfDrawing) { return lineOfDrawing->HolderCount() > 1; }

private:
    QByteArray m_systems = qgetenv("TMPDIR");
    QTemporaryDir m_folder{QDir::currentPath() + QStringLiteral("/work-XXXXXX")};
    QTemporaryDir m_temporary{QDir::currentPath() + QStringLiteral("/temporary-XXXXXX")};
};
