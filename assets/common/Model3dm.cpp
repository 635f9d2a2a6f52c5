// SPDX-License-Identifier: Zlib
#include "assets/common/Model3dm.h"

#include "assets/common/Output.h"
#include "base/Numbers.h"

#include <algorithm>
#include <cmath>

namespace assets
{
namespace
{
double Length(double x, double y, double z)
{
    return std::sqrt(x * x + y * y + z * z);
}

std::string Joined(std::initializer_list<std::string> fields)
{
    std::string line;
    for (const std::string& field : fields)
        line += (line.empty() ? "" : ",") + field;
    return line + "\n";
}

void AppendMesh(std::string& out, const ModelMesh& mesh, int index)
{
    const std::string m = std::to_string(index);
    out +=
        Joined({"EditObjMesh", m, std::to_string(mesh.Rows), std::to_string(mesh.Cols), std::to_string(mesh.Colour)});
    if (mesh.Colour < 0)
        out += mesh.Texture + "\n";
    for (int i = 0; i < mesh.Rows; ++i)
        for (int j = 0; j < mesh.Cols; ++j)
        {
            const ModelPoint& p = mesh.At(i, j);
            out += Joined({"EditObjMeshPt", m, std::to_string(i), std::to_string(j), NumberText(p.X), NumberText(p.Y),
                           NumberText(p.Z), std::to_string(p.U), std::to_string(p.V)});
        }
}

void AppendSphere(std::string& out, const ModelSphere& sphere, int index)
{
    const std::string s = std::to_string(index);
    out += Joined(
        {"EditObjSfere", s, NumberText(sphere.X), NumberText(sphere.Y), NumberText(sphere.Z), NumberText(sphere.R)});
    for (const SphereLink& link : sphere.Links)
        out +=
            Joined({"AddSfereLink", s, std::to_string(link.Mesh), std::to_string(link.Row), std::to_string(link.Col)});
}
}

int FlatColour(Rgb colour)
{
    return FlatColour(base::RoundByte(colour.R * 255), base::RoundByte(colour.G * 255),
                      base::RoundByte(colour.B * 255));
}

Rgb ColourOf(int flatColour)
{
    return {(flatColour & 255) / 255.0, (flatColour >> 8 & 255) / 255.0, (flatColour >> 16 & 255) / 255.0};
}

ModelMesh::ModelMesh(int rows, int cols)
    : Rows(rows), Cols(cols), Points(static_cast<std::size_t>(rows) * static_cast<std::size_t>(cols))
{
}

ModelPoint& ModelMesh::At(int row, int col)
{
    return Points.at(static_cast<std::size_t>(row) * static_cast<std::size_t>(Cols) + static_cast<std::size_t>(col));
}

const ModelPoint& ModelMesh::At(int row, int col) const
{
    return Points.at(static_cast<std::size_t>(row) * static_cast<std::size_t>(Cols) + static_cast<std::size_t>(col));
}

double Model::Reach() const
{
    double reach = 0;
    for (const ModelMesh& mesh : Meshes)
        for (const ModelPoint& p : mesh.Points)
            reach = std::max(reach, Length(p.X, p.Y, p.Z));
    for (const ModelSphere& s : Spheres)
        reach = std::max(reach, Length(s.X, s.Y, s.Z) + s.R);
    return reach;
}

void Model::LinkNear(ModelSphere& sphere, int first, int last, double reach) const
{
    for (int m = first; m <= last; ++m)
    {
        const ModelMesh& mesh = Meshes.at(static_cast<std::size_t>(m));
        for (int i = 0; i < mesh.Rows; ++i)
            for (int j = 0; j < mesh.Cols; ++j)
            {
                const ModelPoint& p = mesh.At(i, j);
                if (Length(p.X - sphere.X, p.Y - sphere.Y, p.Z - sphere.Z) <= sphere.R + reach)
                    sphere.Links.push_back({m, i, j});
            }
    }
}

void WriteModel(const Model& model, const std::string& path)
{
    // Every texture is announced once, in order of first use.
    std::vector<std::string> textures;
    for (const ModelMesh& mesh : model.Meshes)
        if (mesh.Colour < 0 && std::find(textures.begin(), textures.end(), mesh.Texture) == textures.end())
            textures.push_back(mesh.Texture);

    std::string out = "3DM - VER 1.0.0\n";
    for (const std::string& texture : textures)
        out += Joined({"MakeTexture", texture});
    out += Joined({"MakeObj", "0", "0", "0", "0", "0", std::to_string(model.Meshes.size()),
                   std::to_string(model.Spheres.size()), model.Visible ? "1" : "0", NumberText(model.Mass)});
    out += Joined({"SetObjR", NumberText(model.Reach())});
    for (std::size_t m = 0; m < model.Meshes.size(); ++m)
        AppendMesh(out, model.Meshes[m], static_cast<int>(m));
    for (std::size_t s = 0; s < model.Spheres.size(); ++s)
        AppendSphere(out, model.Spheres[s], static_cast<int>(s));

    WriteText(path, out);
}
}
