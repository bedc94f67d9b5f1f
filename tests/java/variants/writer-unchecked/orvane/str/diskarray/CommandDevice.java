package orvane.str.diskarray;

/** Lacks sequence_no, its last unchecked field. */
public class CommandDevice {
    public int volk_lite;
    public int mode;
    public int[] valid = new int[2];
    public int[] lu = new int[2];
    public int[] security = new int[2];
    public String sequence_no_absent;
    public int cmd_count;
    public CmdDevInfo[] cmddev;
}
