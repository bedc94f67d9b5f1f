package orvane.str.diskarray;

/** Cannot be initialised: the JVM cannot find it for the bridge. */
public class CouplingLU {
    static {
        if (!Boolean.getBoolean("kx.never")) throw new IllegalStateException("unusable class");
    }

    public int primary_stat;
    public int second_stat;
    public int primary_lu;
    public int second_lu;
    public int primary_switch_stat;
    public int second_switch_stat;
    public int mirror_no;
}
