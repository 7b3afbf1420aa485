// Prints where KWin keeps its windows and which area it leaves to them, as one line that begins with QUESTION. A test
// replaces that word, to find the answer in KWin's log.
const windows = workspace.windowList ? workspace.windowList() : workspace.clientList(); // KWin 6 and 5
const area = workspace.clientArea(KWin.MaximizeArea, workspace.activeScreen, workspace.currentDesktop);
const lines = [`area ${area.x},${area.y} ${area.width}x${area.height}`];
for (const window of windows) {
    const place = window.frameGeometry;
    lines.push(`window ${place.x},${place.y} ${place.width}x${place.height} ${window.caption}`);
}
print("QUESTION " + lines.join("|"));
