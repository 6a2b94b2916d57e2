"""Documents of every kind, as the command writes them of the sample buildings, and the examples."""

import json
import pathlib
import subprocess
import tempfile

ROOT = pathlib.Path(__file__).resolve().parents[2]
BUILDINGS = ROOT / "tests/data/buildings"

# Documents that the command reads and does not write.
FILES = {
    "columns": ["examples/precast-hall.column-input.json", "examples/precast-hall.column-results.json",
                "tests/data/columns/check-input.json"],
    "drawing-set": ["examples/precast-hall.drawing-set.json", "tests/data/drawing/drawing-set.json"],
    "floor-sdc": ["examples/masonry-block.floor-sdc.json", "tests/data/drawing/floor-sdc.json"],
    "beam-result": ["tests/data/honesty/beam-result.json"],
    "slab-model": ["tests/data/slab/model.json"],
}
# Parts of a drawing set that are documents of their own.
PARTS = {"splitDrawing": "drawing-parts", "parseDrawing": "drawing-tables", "matchFloorInfo": "drawing-floors",
         "matchElementInfo": "drawing-elements", "classifyLayer": "drawing-layers", "reviseScale": "drawing-scales",
         "locateDrawing": "drawing-locations"}
LAYER_FILE = {"FileName": "S-02", "etBeam": [{"LayerName": "S-BEAM", "EdoIDList": [{"EdoID": 101}, {"EdoID": 102}]}]}
CLASSIFICATION = {"LayerClassifyItems": [
    {"DrawingName": "S-02", "ElementType": 15, "ClassifiedJsonFilePath": "/project/S-02_etBeam.json"}]}
CONTEXT = {"FloorInfo": {"FloorName": "F1", "FloorCode": "1", "Height": 3.6, "BtmElev": 0, "FloorID": 58},
           "CADOptions": {"beam code": "KL"}}


def read(path):
    return json.loads(pathlib.Path(path).read_text(encoding="utf-8"))


class Command:
    """The command, in a folder of its own."""

    def __init__(self, program, folder):
        self.program, self.folder = pathlib.Path(program).resolve(), pathlib.Path(folder)

    def run(self, *arguments):
        """The result of a run; exit codes 0 and 3 have made one."""
        result = subprocess.run([self.program, *arguments], cwd=self.folder, capture_output=True, check=False)
        if result.returncode not in (0, 3):
            raise RuntimeError(f"{arguments}: {result.stderr.decode()}")
        return result.stdout

    def document(self, *arguments):
        self.run(*arguments, "-o", "document.json")
        return read(self.folder / "document.json")


def floors_of(command, project):
    info = json.loads(command.run("project", "info", project, "--json"))
    return [(region["name"], floor["name"]) for region in info["regions"] for floor in region["floors"]]


def of_floor(command, project, region, floor):
    """Kind and document of everything that tells of one floor."""
    place = ("--region", region, "--floor", floor)
    command.run("drawing", "make", project, *place, "-o", "floor.cadi2")
    drawing = ("--drawing", "floor.cadi2")
    yield "cadi2", read(command.folder / "floor.cadi2")
    yield "opening-reply", command.document("opening", "export", project, *place)
    yield "slab-model", command.document("slab", "export", project, *place)
    yield "slab-io", command.document("slab", "export", project, *place, *drawing)
    yield "beams", command.document("beam", "export", project, *place)
    yield "beam-seats", command.document("beam", "seats", "export", project, *place)
    yield "beam-identify-input", command.document("beam", "identify-input", project, *place)
    for kind, form in (("brick", "json"), ("force", "json"), ("brick", "cloud")):
        yield "wall-input", command.document("wall", "export", project, "--kind", kind, "--format", form, *place,
                                             *drawing)
    for kind in ("brick", "force"):
        yield "wall-reply", command.document("wall", "reply", project, "--kind", kind, *place)


def of_building(command, building, floors=None):
    """Kind and document of everything that is written of a building.
    @param floors  how many of its floors, from the first; all if absent"""
    command.run("project", "import", str(building), "-o", "house.hbxdb")
    yield "hbx-project", command.document("project", "export", "house.hbxdb")
    places = floors_of(command, "house.hbxdb")
    for region in dict.fromkeys(region for region, _ in places):
        yield "floors", command.document("floors", "export", "house.hbxdb", "--region", region)
    yield "opening-options", command.document("opening", "options", "house.hbxdb")
    for region, floor in places[:floors]:
        yield from of_floor(command, "house.hbxdb", region, floor)
    yield "id-map", id_map(command, "house.hbxdb", *places[0])


def id_map(command, project, region, floor):
    """Of what an export of a floor makes on that floor again."""
    place = ("--region", region, "--floor", floor)
    command.run("slab", "export", project, *place, "-o", "slabs.json")
    subprocess.run([command.program, "slab", "apply", project, *place, "slabs.json", "--as-new", "--ids", "ids.json"],
                   cwd=command.folder, capture_output=True, check=False)
    path = command.folder / "ids.json"
    return read(path) if path.exists() else {}


def of_files():
    for kind, names in FILES.items():
        for name in names:
            yield kind, read(ROOT / name)
    for name in FILES["drawing-set"]:
        drawing_set = read(ROOT / name)
        yield from ((kind, drawing_set[key]) for key, kind in PARTS.items() if drawing_set[key])
        yield from (("layer-group", group) for group in (drawing_set["classifyLayer"] or [])[:1])
    yield "layer-file", LAYER_FILE
    yield "layer-classification", CLASSIFICATION
    yield "beam-context", CONTEXT
    span = read(ROOT / "tests/data/beams/made-building.json")["Beam"][0]["EDOInfo"][0]["BeamSpanInfo"]
    yield "beam-spans", {"17": span, "18": span}


def command_in_folder(program):
    """The command with a folder that goes when the folder object does."""
    folder = tempfile.TemporaryDirectory()
    return Command(program, folder.name), folder


def checked(command, kind, names):
    """What `orvcad check` says of files; whatever it finds, it has to answer."""
    result = subprocess.run([command.program, "check", kind, *names, "--json"], cwd=command.folder,
                            capture_output=True, check=False)
    if result.returncode not in (0, 2, 3):
        raise RuntimeError(f"check {kind}: exit code {result.returncode}: {result.stderr.decode()}")
    return result.stdout
