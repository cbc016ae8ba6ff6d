// __chkstk: touches the pages of a large stack frame in order, so that the system's guard page moves along.
// The compiler calls it with the frame's size in rax and expects every register to be kept.

// Works on page numbers: r10 goes down from the caller's page, r11 is the page of the new frame's low end.
// A size beyond the whole address space below wraps around; page 0 is then the end, and touching faults.
__asm__(R"(
    .globl __chkstk
    .def __chkstk
        .scl 2
        .type 32
    .endef
    .seh_proc __chkstk
__chkstk:
    subq $16, %rsp
    .seh_stackalloc 16
    .seh_endprologue
    movq %r10, 8(%rsp)
    movq %r11, (%rsp)

    leaq 24(%rsp), %r10
    movq %r10, %r11
    subq %rax, %r11
    jnc .Lhave_low_end
    xorl %r11d, %r11d
.Lhave_low_end:
    shrq $12, %r10
    shrq $12, %r11

.Lnext_page:
    cmpq %r11, %r10
    jbe .Lall_touched
    decq %r10
    shlq $12, %r10
    testb $0, (%r10)
    shrq $12, %r10
    jmp .Lnext_page

.Lall_touched:
    movq (%rsp), %r11
    movq 8(%rsp), %r10
    addq $16, %rsp
    retq
    .seh_endproc
)");
