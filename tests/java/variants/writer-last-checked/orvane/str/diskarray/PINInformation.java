package orvane.str.diskarray;

/** Lacks unite_lu, the last field whose failure drops the object. */
public class PINInformation {
    public int unite_option;
    public int[] single_lu;
    public int[] unite_lu_absent;
}
