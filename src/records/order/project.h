#pragma once

#include "framework/laid_out.h"
#include "framework/layout.h"

#include <string>

namespace ItUnitechnik {

// The order's project: four lines of text behind the identifying line.
class Project : public LaidOut<Project> {
public:
    bool Read(Archive& ar) override;

    std::wstring projectText1; // line 4 of the order, 20 wide
    std::wstring projectText2; // line 5
    std::wstring projectText3; // line 6
    std::wstring projectText4; // line 7
};

template <class IO>
void Layout(IO& io, Project& project)
{
    io.Text(20, project.projectText1, "projectText1");
    io.EndLine();
    io.Text(20, project.projectText2, "projectText2");
    io.EndLine();
    io.Text(20, project.projectText3, "projectText3");
    io.EndLine();
    io.Text(20, project.projectText4, "projectText4");
    io.EndLine();
}

} // namespace ItUnitechnik
