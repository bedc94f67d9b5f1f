package orvane.str.diskarray;

/** Lacks fc_ph, its last unchecked field. */
public class FibreInformationSfc {
    public String biu;
    public String sequence;
    public String oper_firmware;
    public String post_firmware;
    public String endec;
    public String fc_ph_absent;
}
