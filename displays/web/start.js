// Lets the page paint its background before the browser reads the program, which takes it longer.
// Where nobody sees the page, it gets no frame, and the program waits for one.
requestAnimationFrame(function () {
  setTimeout(function () {
    var program = document.getElementById('program');
    if (!document.getElementById('notice').hidden) return;
    // A script that could not run because of its type runs when it is put in anew with another one.
    program.type = 'text/javascript';
    program.parentNode.insertBefore(program, program.nextSibling);
  }, 0);
});
