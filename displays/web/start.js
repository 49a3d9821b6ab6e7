// Lets the page paint its background before the browser reads the program, which takes it longer.
// Where nobody sees the page, it gets no frame, and the program waits for one.
requestAnimationFrame(function () {
  setTimeout(function () {
    var text = document.getElementById('bytes').textContent;
    var bytes = new Uint8Array(text.length);
    var script = document.createElement('script');
    if (!canRun()) return;
    // Stored in a byte, a character that was moved up by 256 is itself again.
    for (var i = 0; i < bytes.length; ++i) bytes[i] = text.charCodeAt(i);
    window.Module = {wasmBinary: bytes};
    script.textContent = document.getElementById('program').textContent;
    document.body.appendChild(script);
    // A saved copy of the page must not run it before it has read the bytes.
    document.body.removeChild(script);
  }, 0);
});
