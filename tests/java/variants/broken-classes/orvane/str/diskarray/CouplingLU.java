package orvane.str.diskarray;

/** Cannot be made without an argument. */
public class CouplingLU {
    public int primary_stat;
    public int second_stat;
    public int primary_lu;
    public int second_lu;
    public int primary_switch_stat;
    public int second_switch_stat;
    public int mirror_no;

    public CouplingLU(int primary) {
        primary_lu = primary;
    }
}
