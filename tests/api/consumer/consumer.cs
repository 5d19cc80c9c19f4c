// A .NET host: a slab with its outline and a mat, written to the file named
// by its one argument through the binding's Document; the reinforcement
// summary is read and given back to the library.
using System;
using ItUnitechnik;

static class Consumer
{
    static int Main(string[] args)
    {
        if (args.Length != 1) {
            return 2;
        }
        string summary;
        using (var document = new Document()) {
            var placement = new Placement(new Point3(0, 0, 0), new Point3(6000, 0, 0), new Point3(0, 2400, 0));
            document.StartOrder(1, 101, placement, 600, "Floor slab", 1.25);
            // A closed rectangle: the first point again at the end.
            document.AddContour(new[] {
                new Point(0, 0), new Point(6000, 0), new Point(6000, 2400), new Point(0, 2400), new Point(0, 0) });
            int mat = document.AddSteelmat("Q188A", 5800, 2200, true, false, 1, 100, 100, 35);
            if (mat != 1 || !document.Write(args[0])) {
                return 1;
            }
            summary = document.ReinforcementSummary();
        }
        Console.WriteLine("wrote {0}; the summary has {1} characters", args[0], summary.Length);
        return summary.Contains("STEELMAT\n") ? 0 : 1;
    }
}
